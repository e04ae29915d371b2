// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "ProjectOnDisk.h"

/** A made-up plugin of the toolkit: the companions' headers, the images, a descriptor. */
namespace PluginOnDisk
{
	inline const std::filesystem::path Sources = VELMORANT_SOURCE_DIR;
	inline const std::string Descriptor = "{\n\t\"FileVersion\": 3,\n\t\"Modules\": [\n\t\t{ \"Name\": \"VelmorantPro\", \"Type\": \"Runtime\", \"LoadingPhase\": \"PreDefault\" }\n\t]\n}\n";

	inline void Copy(const std::filesystem::path& From, const std::filesystem::path& To, const FTemporaryFolder& Where)
	{
		std::filesystem::create_directories(Where.GetNative(To.string()).parent_path());
		std::filesystem::copy(Sources / From, Where.GetNative(To.string()), std::filesystem::copy_options::recursive);
	}

	inline void Make(const FTemporaryFolder& Where, const std::filesystem::path& Plugin)
	{
		for (const char* Module : {"VelmorantSDK", "VelmorantPro", "VelmorantProUI"})
		{
			Copy(std::filesystem::path("Companions") / Module / "Public", Plugin / "Source" / Module / "Public", Where);
		}
		Copy("Companions/VelmorantPro/Resources", Plugin / "Resources", Where);
		Where.Write((Plugin / "VelmorantPro.uplugin").string(), Descriptor);
	}
}

/** Such a plugin in a folder of its own. */
class FPluginOnDisk : public testing::Test
{
protected:
	FPluginOnDisk() { PluginOnDisk::Make(Folder, Plugin); }

	/** Secrets are nowhere but where they belong. */
	void TearDown() override { EXPECT_EQ(Canary::FindLeaksIn(Folder.GetNative()), std::vector<std::string>{}); }

	static void Copy(const std::filesystem::path& From, const std::filesystem::path& To, const FTemporaryFolder& Where) { PluginOnDisk::Copy(From, To, Where); }

	void Copy(const std::filesystem::path& From, const std::filesystem::path& To) const { Copy(From, To, Folder); }

	void WriteDescriptor(const std::string& Text) const { Folder.Write(Plugin + "/VelmorantPro.uplugin", Text); }
	std::string ReadDescriptor() const { return Folder.Read(Plugin + "/VelmorantPro.uplugin"); }

	/** Exactly one part of a file gives way to another. */
	void Replace(const std::string& File, const std::string& From, const std::string& To) const
	{
		std::string Text = Folder.Read(Plugin + "/" + File);
		ASSERT_EQ(CountOf(Text, From), 1u) << From << " in " << File;
		Folder.Write(Plugin + "/" + File, Text.replace(Text.find(From), From.size(), To));
	}

	/** The same in the only header of the companions with that name. */
	void ReplaceInHeader(const std::string& Header, const std::string& From, const std::string& To) const
	{
		Replace(FindHeader(Header), From, To);
	}

	std::string FindHeader(const std::string& Header) const
	{
		for (const char* Module : {"VelmorantSDK", "VelmorantPro", "VelmorantProUI"})
		{
			const std::string File = std::string("Source/") + Module + "/Public/" + Header;
			if (Folder.Exists(Plugin + "/" + File))
			{
				return File;
			}
		}
		ADD_FAILURE() << "there is no header " << Header;
		return Header;
	}

	std::string GetPath(const std::string& File = {}) const { return Folder.GetNative(File.empty() ? Plugin : Plugin + "/" + File).string(); }

	FProgramResult Install(const std::vector<std::string>& Options = {}) const
	{
		std::vector<std::string> Arguments = {"install", GetPath()};
		Arguments.insert(Arguments.end(), Options.begin(), Options.end());
		return FProgramRun::Run(Arguments);
	}

	/** Runs the installation and expects that it succeeds. */
	FProgramResult Do(const std::vector<std::string>& Options = {}) const
	{
		const FProgramResult Result = Install(Options);
		EXPECT_EQ(Result.ExitStatus, 0) << Result.Output << Result.Errors;
		return Result;
	}

	FProgramResult Compare() const { return FProgramRun::Run({"contract", GetPath()}); }

	FFolderState Look() const { return LookAtFolder(GetPath()); }

	static inline const std::filesystem::path Sources = PluginOnDisk::Sources;
	static inline const std::string Plugin = "Plugins/VelmorantPro";
	static inline const std::string ModuleFile = "Source/VelmorantProEditor/Private/VelmorantProEditor.cpp";
	static inline const std::string Descriptor = PluginOnDisk::Descriptor;

	FTemporaryFolder Folder;
};
