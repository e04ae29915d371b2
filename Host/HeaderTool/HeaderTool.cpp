// Copyright Velmorant. All Rights Reserved.

#include "HeaderTool.h"

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
	namespace
	{
		const char* const Usage =
			"Usage: VelmorantHeaderTool --module NAME --output DIR --manifest FILE [--reference FILE]...\n"
			"\n"
			"Reads the headers of a module that carry reflection macros (UCLASS, USTRUCT, UENUM, UINTERFACE, UFUNCTION, UPROPERTY)\n"
			"and writes <Name>.generated.h and <Name>.gen.cpp for each of them.\n"
			"\n"
			"  --module NAME     the module that is generated\n"
			"  --output DIR      where the generated files go; made if needed\n"
			"  --manifest FILE   the module's headers: a line 'module NAME', then lines 'header INCLUDE_PATH FILE'\n"
			"  --reference FILE  the manifest of a module that this one depends on; its types are known, nothing is written for it\n"
			"  --help            shows this text\n"
			"\n"
			"Exit status: 0 done, 1 a header or manifest is wrong or a file cannot be read or written, 2 bad usage.\n";

		/** Empty when the arguments make sense, else what is wrong with them. */
		std::string ParseOptions(const std::vector<std::string>& Arguments, FOptions& OutOptions)
		{
			for (size_t Index = 0; Index < Arguments.size(); ++Index)
			{
				const std::string& Name = Arguments[Index];
				if (Name == "--help" || Name == "-h")
				{
					OutOptions.bHelp = true;
					return "";
				}
				std::string* Value = Name == "--module" ? &OutOptions.Module : Name == "--output" ? &OutOptions.OutputFolder
					: Name == "--manifest"														  ? &OutOptions.Manifest
																								  : nullptr;
				if (!Value && Name != "--reference")
				{
					return "unknown option '" + Name + "'";
				}
				if (++Index == Arguments.size())
				{
					return "'" + Name + "' needs a value";
				}
				if (!Value)
				{
					OutOptions.References.push_back(Arguments[Index]);
				}
				else if (!Value->empty())
				{
					return "'" + Name + "' is given twice";
				}
				else
				{
					*Value = Arguments[Index];
				}
			}
			const std::string* Missing = OutOptions.Module.empty() ? &OutOptions.Module : OutOptions.OutputFolder.empty() ? &OutOptions.OutputFolder
				: OutOptions.Manifest.empty()																			  ? &OutOptions.Manifest
																														  : nullptr;
			return !Missing ? "" : Missing == &OutOptions.Module ? "--module is missing"
				: Missing == &OutOptions.OutputFolder			 ? "--output is missing"
																 : "--manifest is missing";
		}

		class FRun
		{
		public:
			FRun(const FOptions& InOptions, FDiagnostics& InDiagnostics)
				: Options(InOptions)
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
				if (Diagnostics.HasErrors() || !WriteOutputs(Options.OutputFolder, Emit(Types), Diagnostics))
				{
					RemoveOutputs(Options.OutputFolder, Diagnostics);
				}
			}

		private:
			void ReadReferences()
			{
				for (const std::string& Path : Options.References)
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
				if (!ReadManifest(Options.Manifest, Manifest, Diagnostics))
				{
					return;
				}
				if (Manifest.Module != Options.Module)
				{
					Diagnostics.Error(Options.Manifest, 0, "belongs to module '" + Manifest.Module + "', but --module says '" + Options.Module + "'.");
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
						Diagnostics.Error(Header->Path, 0, "has the same file name as " + Found->second + " in module '" + Manifest.Module + "'; rename one, their generated files would overwrite each other.");
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

			const FOptions& Options;
			FDiagnostics& Diagnostics;
			std::vector<std::unique_ptr<FHeader>> Headers;
		};
	}

	int RunHeaderTool(const std::vector<std::string>& Arguments, std::ostream& Out, std::ostream& Err)
	{
		FOptions Options;
		const std::string Problem = ParseOptions(Arguments, Options);
		if (!Problem.empty())
		{
			Err << "VelmorantHeaderTool: " << Problem << ".\n\n"
				<< Usage;
			return 2;
		}
		if (Options.bHelp)
		{
			Out << Usage;
			return 0;
		}
		FDiagnostics Diagnostics;
		FRun(Options, Diagnostics).Run();
		Diagnostics.Print(Err);
		return Diagnostics.HasErrors() ? 1 : 0;
	}
}
