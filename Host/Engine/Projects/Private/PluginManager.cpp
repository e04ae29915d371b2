// Copyright Velmorant. All Rights Reserved.

#include "Interfaces/IPluginManager.h"

#include "DescriptorReader.h"
#include "HostFiles.h"
#include "HostPlugins.h"
#include "HostState.h"
#include "Misc/Paths.h"

namespace PluginManager
{
	class FPlugin final : public IPlugin
	{
	public:
		FPlugin(const FString& InDescriptorFile, FPluginDescriptor&& InDescriptor)
			: Name(FPaths::GetBaseFilename(InDescriptorFile))
			, DescriptorFile(InDescriptorFile)
			, Descriptor(MoveTemp(InDescriptor))
		{
		}

		//~ Begin IPlugin
		const FString& GetName() const override { return Name; }
		FString GetBaseDir() const override { return FPaths::GetPath(DescriptorFile); }
		FString GetContentDir() const override { return GetBaseDir() + TEXT("/Content"); }
		FString GetMountedAssetPath() const override { return TEXT("/") + Name + TEXT("/"); }
		bool IsEnabled() const override { return true; } // Host: what is in a plugin folder is there to be used
		bool CanContainContent() const override { return Descriptor.bCanContainContent; }
		const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }
		//~ End IPlugin

	private:
		FString Name;
		FString DescriptorFile;
		FPluginDescriptor Descriptor;
	};

	class FPluginManager final : public IPluginManager
	{
	public:
		void Add(const TSharedRef<IPlugin>& Plugin)
		{
			if (!FindPlugin(Plugin->GetName()).IsValid())
			{
				Plugins.Add(Plugin);
				Plugins.Sort([](const TSharedRef<IPlugin>& A, const TSharedRef<IPlugin>& B) { return A->GetName() < B->GetName(); });
			}
		}

		//~ Begin IPluginManager
		TSharedPtr<IPlugin> FindPlugin(const FStringView Name) override
		{
			const TSharedRef<IPlugin>* Found = Plugins.FindByPredicate([Name](const TSharedRef<IPlugin>& Plugin) { return FStringView(Plugin->GetName()) == Name; });
			return Found != nullptr ? Found->ToSharedPtr() : nullptr;
		}

		TArray<TSharedRef<IPlugin>> GetEnabledPlugins() override { return Plugins; }

		TArray<TSharedRef<IPlugin>> GetEnabledPluginsWithContent() const override
		{
			return Plugins.FilterByPredicate([](const TSharedRef<IPlugin>& Plugin) { return Plugin->CanContainContent(); });
		}
		//~ End IPluginManager

	private:
		TArray<TSharedRef<IPlugin>> Plugins; // by name
	};

	THostState<FPluginManager> Manager;

	bool ReadDescriptor(const FString& File, FPluginDescriptor& OutDescriptor)
	{
		const std::unique_ptr<FDescriptorReader> Reader = FDescriptorReader::Open(File);
		if (Reader == nullptr)
		{
			return false;
		}
		Reader->Read("Version", OutDescriptor.Version);
		Reader->Read("VersionName", OutDescriptor.VersionName);
		Reader->Read("FriendlyName", OutDescriptor.FriendlyName);
		Reader->Read("Description", OutDescriptor.Description);
		Reader->Read("Category", OutDescriptor.Category);
		Reader->Read("CreatedBy", OutDescriptor.CreatedBy);
		Reader->Read("DocsURL", OutDescriptor.DocsURL);
		Reader->Read("SupportURL", OutDescriptor.SupportURL);
		Reader->Read("CanContainContent", OutDescriptor.bCanContainContent);
		Reader->ReadModules(OutDescriptor.Modules);
		Reader->ReadPlugins(OutDescriptor.Plugins);
		return Reader->IsSound();
	}

	/** Empty when the folder is no plugin. */
	FString FindDescriptor(const FString& Folder)
	{
		const TArray<FString> Found = HostFiles::FindFilesIn(Folder, TEXT(".uplugin"));
		return Found.IsEmpty() ? FString() : Found[0];
	}
}

IPluginManager& IPluginManager::Get()
{
	return PluginManager::Manager.Get();
}

namespace HostPlugins
{
	void Discover(const TArray<FString>& Directories)
	{
		for (const FString& Directory : Directories)
		{
			for (const FString& Folder : HostFiles::FindDirectories(Directory))
			{
				const FString File = PluginManager::FindDescriptor(Folder);
				FPluginDescriptor Descriptor;
				if (!File.IsEmpty() && PluginManager::ReadDescriptor(File, Descriptor))
				{
					PluginManager::Manager.Get().Add(MakeShared<PluginManager::FPlugin>(File, MoveTemp(Descriptor)));
				}
			}
		}
	}

	TArray<FContentMount> GetContentMounts()
	{
		TArray<FContentMount> Result;
		Result.Add(FContentMount{TEXT("/Game/"), FPaths::ProjectContentDir()});
		for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetEnabledPluginsWithContent())
		{
			Result.Add(FContentMount{Plugin->GetMountedAssetPath(), Plugin->GetContentDir() + TEXT("/")});
		}
		return Result;
	}
}
