// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "HeaderTool.h"
#include "TemporaryFolder.h"

#include <map>
#include <sstream>
#include <string>
#include <vector>

/** Modules in a temporary folder, and runs of the header tool on them. */
class FHeaderToolRun
{
public:
	struct FResult
	{
		int ExitStatus = 0;
		std::string Output;
		std::string Errors; // the folder's name cut out, so that messages begin with the header's name
	};

	/** Writes a header and adds it to the module's manifest under its own name. */
	void AddHeader(const std::string& Module, const std::string& Name, const std::string& Source)
	{
		Folder.Write(Name, Source);
		Manifests[Module] += "header " + Name + " " + GetPath(Name) + "\n";
	}

	/** Generates Module into "Out"; all other modules are its references. */
	FResult Generate(const std::string& Module)
	{
		std::vector<std::string> Arguments = {"--module", Module, "--output", GetPath("Out"), "--manifest", GetPath(Module + ".manifest")};
		for (const auto& [Name, Headers] : Manifests)
		{
			Folder.Write(Name + ".manifest", "module " + Name + "\n" + Headers);
			if (Name != Module)
			{
				Arguments.insert(Arguments.end(), {"--reference", GetPath(Name + ".manifest")});
			}
		}
		return Run(Arguments);
	}

	FResult Run(const std::vector<std::string>& Arguments) const
	{
		std::ostringstream Output;
		std::ostringstream Errors;
		FResult Result;
		Result.ExitStatus = HeaderTool::RunHeaderTool(Arguments, Output, Errors);
		Result.Output = Output.str();
		Result.Errors = WithoutFolder(Errors.str());
		return Result;
	}

	std::string GetPath(const std::string& Relative) const { return Folder.GetNative(Relative).string(); }
	std::string ReadOutput(const std::string& Name) const { return Folder.Read("Out/" + Name); }
	bool HasOutput(const std::string& Name) const { return Folder.Exists("Out/" + Name); }

	const FTemporaryFolder Folder;

private:
	std::string WithoutFolder(std::string Text) const
	{
		const std::string Prefix = GetPath("") + "/";
		for (size_t Found = Text.find(Prefix); Found != std::string::npos; Found = Text.find(Prefix))
		{
			Text.erase(Found, Prefix.size());
		}
		return Text;
	}

	std::map<std::string, std::string> Manifests;
};

/** A header X.h with one class UX, whose public members begin in line 8. */
inline std::string ClassWith(const std::string& Members)
{
	return "#pragma once\n#include \"X.generated.h\"\nUCLASS()\nclass UX : public UObject\n{\n\tGENERATED_BODY()\npublic:\n" + Members + "\n};\n";
}

/** A header X.h whose declarations begin in line 3. */
inline std::string FileWith(const std::string& Declarations)
{
	return "#pragma once\n#include \"X.generated.h\"\n" + Declarations + "\n";
}
