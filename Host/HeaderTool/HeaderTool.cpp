// Copyright Velmorant. All Rights Reserved.

#include "HeaderTool.h"

#include "Arguments.h"
#include "Diagnostics.h"
#include "FileWriter.h"
#include "GeneratedHeader.h"
#include "GeneratedSource.h"
#include "HeaderParser.h"
#include "Manifest.h"
#include "TextTools.h"
#include "TypeTable.h"
#include "Validator.h"

#include <ostream>

namespace HeaderTool
{
	namespace HeaderToolRun
	{
		class FRun
		{
		public:
			FRun(const FArguments& InArguments, FDiagnostics& InDiagnostics)
				: Arguments(InArguments)
				, Diagnostics(InDiagnostics)
			{
			}

			/** All headers are read before any is generated: they name each other's types. */
			void Run()
			{
				ReadReferences();
				ReadOwn();
				FTypeTable Types;
				for (const std::unique_ptr<FHeader>& Header : Headers)
				{
					Types.Add(*Header, Diagnostics);
				}
				for (const std::unique_ptr<FHeader>& Header : Headers)
				{
					if (Header->bOwn)
					{
						ValidateHeader(*Header, Types, Diagnostics);
					}
				}
				if (Diagnostics.HasErrors() || !WriteOutputs(Arguments.OutputFolder, Emit(Types), Diagnostics))
				{
					RemoveOutputs(Arguments.OutputFolder, Diagnostics);
				}
			}

		private:
			void ReadReferences()
			{
				for (const std::string& Path : Arguments.References)
				{
					FManifest Manifest;
					if (ReadManifest(Path, Manifest, Diagnostics))
					{
						ReadHeaders(Manifest, false);
					}
				}
			}

			void ReadOwn()
			{
				FManifest Manifest;
				if (!ReadManifest(Arguments.Manifest, Manifest, Diagnostics))
				{
					return;
				}
				if (Manifest.Module != Arguments.Module)
				{
					Diagnostics.Error(Arguments.Manifest, {}, "belongs to module '" + Manifest.Module + "', but --module says '" + Arguments.Module + "'.");
				}
				ReadHeaders(Manifest, true);
				CheckBaseNames(Manifest);
			}

			void ReadHeaders(const FManifest& Manifest, bool bOwn)
			{
				for (const FManifestHeader& Entry : Manifest.Headers)
				{
					std::string Source;
					if (!ReadFile(Entry.Path, Source, Diagnostics))
					{
						continue;
					}
					std::unique_ptr<FHeader> Header = std::make_unique<FHeader>();
					Header->Path = Entry.Path;
					Header->IncludePath = Entry.IncludePath;
					Header->Module = Manifest.Module;
					Header->bOwn = bOwn;
					ParseHeader(Source, *Header, Diagnostics);
					Headers.push_back(std::move(Header));
				}
			}

			/** All generated headers of a module are included by plain name. */
			void CheckBaseNames(const FManifest& Manifest)
			{
				std::map<std::string, std::string> Names;
				for (const std::unique_ptr<FHeader>& Header : Headers)
				{
					if (!Header->bOwn)
					{
						continue;
					}
					const auto [Found, bNew] = Names.emplace(ToLower(Header->BaseName()), Header->Path);
					if (!bNew)
					{
						Diagnostics.Error(Header->Path, {}, "has the same file name as " + Found->second + " in module '" + Manifest.Module + "'; rename one, their generated files would overwrite each other.");
					}
				}
			}

			std::vector<FOutputFile> Emit(const FTypeTable& Types) const
			{
				std::vector<FOutputFile> Files;
				for (const std::unique_ptr<FHeader>& Header : Headers)
				{
					if (Header->bOwn)
					{
						Files.push_back({Header->BaseName() + ".generated.h", EmitGeneratedHeader(*Header, Types)});
						Files.push_back({Header->BaseName() + ".gen.cpp", EmitGeneratedSource(*Header, Types)});
					}
				}
				return Files;
			}

			const FArguments& Arguments;
			FDiagnostics& Diagnostics;
			std::vector<std::unique_ptr<FHeader>> Headers;
		};
	}

	int RunHeaderTool(const std::vector<std::string>& Words, std::ostream& Out, std::ostream& Err)
	{
		FArguments Arguments;
		if (const std::optional<int> End = ParseArguments(Words, Arguments, Out, Err))
		{
			return *End;
		}
		FDiagnostics Diagnostics;
		HeaderToolRun::FRun(Arguments, Diagnostics).Run();
		Diagnostics.Print(Err);
		return Diagnostics.HasErrors() ? 1 : 0;
	}
}
