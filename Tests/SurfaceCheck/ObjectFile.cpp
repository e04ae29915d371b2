// Copyright Velmorant. All Rights Reserved.

#include "ObjectFile.h"

#include <elf.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace SurfaceCheck
{
	namespace ObjectFile
	{
		/** One file's bytes, and typed looks at them that never leave the file. */
		class FImage
		{
		public:
			explicit FImage(const std::string& InPath)
				: Path(InPath)
			{
				std::ifstream File(Path, std::ios::binary);
				if (!File)
				{
					Fail("cannot be read; build it first");
				}
				Bytes.assign(std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>());
			}

			[[noreturn]] void Fail(const std::string& Reason) const
			{
				throw std::runtime_error(Path + ": " + Reason);
			}

			template<typename T>
			T At(size_t Offset) const
			{
				if (Offset > Bytes.size() || Bytes.size() - Offset < sizeof(T))
				{
					Fail("the object file ends too early; build it again");
				}
				T Value;
				std::memcpy(&Value, Bytes.data() + Offset, sizeof(T));
				return Value;
			}

			std::string Text(const Elf64_Shdr& Table, size_t Offset) const
			{
				const size_t First = Table.sh_offset + Offset;
				const size_t End = First < Bytes.size() ? Bytes.find('\0', First) : std::string::npos;
				if (End == std::string::npos)
				{
					Fail("a name lies outside of the object file; build it again");
				}
				return Bytes.substr(First, End - First);
			}

		private:
			std::string Path;
			std::string Bytes;
		};

		class FReader
		{
		public:
			explicit FReader(const std::string& Path)
				: Image(Path)
			{
			}

			std::vector<FSection> Run()
			{
				ReadHeaders();
				ReadSymbols();
				for (const Elf64_Shdr& Header : Headers)
				{
					if (Header.sh_type == SHT_RELA && Header.sh_info < Sections.size())
					{
						ReadReferences(Header);
					}
				}
				return std::move(Sections);
			}

		private:
			void ReadHeaders()
			{
				const Elf64_Ehdr File = Image.At<Elf64_Ehdr>(0);
				const bool bElf = std::memcmp(File.e_ident, ELFMAG, SELFMAG) == 0 && File.e_type == ET_REL;
				if (!bElf || File.e_ident[EI_CLASS] != ELFCLASS64 || File.e_ident[EI_DATA] != ELFDATA2LSB)
				{
					Image.Fail("is no ELF object file of 64 bits, little endian; the check of the surface reads only those");
				}
				for (size_t Index = 0; Index < File.e_shnum; ++Index)
				{
					Headers.push_back(Image.At<Elf64_Shdr>(File.e_shoff + Index * File.e_shentsize));
				}
				if (Headers.empty() || File.e_shstrndx >= Headers.size())
				{
					Image.Fail("has too many sections, or none; make the unity batches smaller");
				}
				for (const Elf64_Shdr& Header : Headers)
				{
					FSection& Section = Sections.emplace_back();
					Section.Name = Image.Text(Headers[File.e_shstrndx], Header.sh_name);
					Section.bShared = (Header.sh_flags & SHF_GROUP) != 0;
					Section.bRunsAtStart = Header.sh_type == SHT_INIT_ARRAY;
				}
			}

			void ReadSymbols()
			{
				for (const Elf64_Shdr& Header : Headers)
				{
					if (Header.sh_type != SHT_SYMTAB)
					{
						continue;
					}
					for (size_t Offset = 0; Offset < Header.sh_size; Offset += sizeof(Elf64_Sym))
					{
						ReadSymbol(Image.At<Elf64_Sym>(Header.sh_offset + Offset), Headers.at(Header.sh_link));
					}
				}
			}

			void ReadSymbol(const Elf64_Sym& Symbol, const Elf64_Shdr& Names)
			{
				const std::string Name = Image.Text(Names, Symbol.st_name);
				SymbolNames.push_back(Name);
				SymbolSections.push_back(Symbol.st_shndx);
				const int Type = ELF64_ST_TYPE(Symbol.st_info);
				if (Symbol.st_shndx == SHN_UNDEF || Symbol.st_shndx >= Sections.size() || Name.empty() || (Type != STT_FUNC && Type != STT_OBJECT))
				{
					return;
				}
				FSection& Section = Sections[Symbol.st_shndx];
				(ELF64_ST_BIND(Symbol.st_info) == STB_LOCAL ? Section.LocalSymbols : Section.GlobalSymbols).push_back(Name);
			}

			void ReadReferences(const Elf64_Shdr& Header)
			{
				FSection& From = Sections[Header.sh_info];
				if (From.Name.find(".LASAN") != std::string::npos)
				{
					return; // the address sanitizer's list of all variables, for what it does before main
				}
				for (size_t Offset = 0; Offset < Header.sh_size; Offset += sizeof(Elf64_Rela))
				{
					const size_t Symbol = ELF64_R_SYM(Image.At<Elf64_Rela>(Header.sh_offset + Offset).r_info);
					if (Symbol >= SymbolNames.size())
					{
						Image.Fail("refers to a symbol that it does not have; build it again");
					}
					const size_t Section = SymbolSections[Symbol];
					if (Section != SHN_UNDEF && Section < Sections.size())
					{
						From.Sections.push_back(Section);
					}
					else if (Section == SHN_UNDEF)
					{
						From.Symbols.push_back(SymbolNames[Symbol]);
					}
				}
			}

			FImage Image;
			std::vector<Elf64_Shdr> Headers;
			std::vector<FSection> Sections; // one for each header
			std::vector<std::string> SymbolNames;
			std::vector<size_t> SymbolSections;
		};
	}

	std::vector<FSection> ReadObjectFile(const std::string& Path)
	{
		return ObjectFile::FReader(Path).Run();
	}
}
