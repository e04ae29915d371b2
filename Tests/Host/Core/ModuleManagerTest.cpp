// Copyright Velmorant. All Rights Reserved.

#include "EditorFilesFixture.h"
#include "HostModules.h"
#include "Modules/ModuleManager.h"

namespace ModuleManagerTest
{
	/** What the modules of this test did, across all editors of the process; each test clears it. */
	std::vector<std::string> ModuleEvents;

	class FBaseModule : public IModuleInterface
	{
	public:
		~FBaseModule() override { ModuleEvents.push_back("Base destroyed"); }
		void StartupModule() override { ModuleEvents.push_back("Base started"); }
		void ShutdownModule() override { ModuleEvents.push_back("Base shut down"); }
	};

	class FToolModule : public IModuleInterface
	{
	public:
		~FToolModule() override { ModuleEvents.push_back("Tool destroyed"); }

		void StartupModule() override
		{
			FModuleManager::LoadModuleChecked<FBaseModule>("TestBase");
			ModuleEvents.push_back(FModuleManager::Get().IsModuleLoaded("TestTool") ? "Tool started, known" : "Tool started, unknown");
		}

		void ShutdownModule() override { ModuleEvents.push_back(FModuleManager::GetModulePtr<FBaseModule>("TestBase") != nullptr ? "Tool shut down before Base" : "Tool shut down after Base"); }
	};

	class FStubbornModule : public IModuleInterface
	{
	public:
		void ShutdownModule() override { ModuleEvents.push_back("Stubborn shut down"); }
		bool SupportsAutomaticShutdown() override { return false; }
	};
}

IMPLEMENT_MODULE(ModuleManagerTest::FBaseModule, TestBase)
IMPLEMENT_MODULE(ModuleManagerTest::FToolModule, TestTool)
IMPLEMENT_MODULE(ModuleManagerTest::FStubbornModule, TestStubborn)

namespace ModuleManagerTest
{
	class ModuleManager : public FEditorFilesTest
	{
	protected:
		ModuleManager() { ModuleEvents.clear(); }
	};

	TEST_F(ModuleManager, StartsAModuleOnceAndWhatItLoadsFirst)
	{
		FToolModule& Tool = FModuleManager::LoadModuleChecked<FToolModule>("TestTool");
		EXPECT_EQ(&FModuleManager::LoadModuleChecked<FToolModule>("testtool"), &Tool);
		EXPECT_EQ(FModuleManager::GetModulePtr<FToolModule>("TestTool"), &Tool);
		EXPECT_EQ(ModuleEvents, (std::vector<std::string>{"Base started", "Tool started, known"}));
	}

	TEST_F(ModuleManager, KnowsWhatItDoesNotHave)
	{
		EXPECT_EQ(FModuleManager::GetModulePtr<IModuleInterface>("TestBase"), nullptr) << "not loaded yet";
		EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded("TestBase"));
		EXPECT_TRUE(FModuleManager::Get().ModuleExists(TEXT("TestBase")));
		EXPECT_FALSE(FModuleManager::Get().ModuleExists(TEXT("TestUnheard")));
	}

	TEST_F(ModuleManager, ShutsDownNamedModulesFirstAndDestroysAllLast)
	{
		FModuleManager::LoadModuleChecked<FToolModule>("TestTool");
		FModuleManager::LoadModuleChecked<FStubbornModule>("TestStubborn");
		ModuleEvents.clear();
		HostModules::ShutDownModules({FName("TestTool")});
		EXPECT_EQ(ModuleEvents, (std::vector<std::string>{"Tool shut down before Base", "Base shut down"}));
		EXPECT_TRUE(HostModules::GetLoaded().IsEmpty());
		HostModules::DestroyModules();
		EXPECT_EQ(ModuleEvents, (std::vector<std::string>{"Tool shut down before Base", "Base shut down", "Tool destroyed", "Base destroyed"}));
	}

	TEST_F(ModuleManager, AnUnloadedModuleCanBeLoadedAgain)
	{
		FModuleManager::LoadModuleChecked<FBaseModule>("TestBase");
		EXPECT_TRUE(FModuleManager::Get().UnloadModule("TestBase"));
		EXPECT_FALSE(FModuleManager::Get().UnloadModule("TestBase"));
		FModuleManager::LoadModuleChecked<FBaseModule>("TestBase");
		EXPECT_EQ(ModuleEvents, (std::vector<std::string>{"Base started", "Base shut down", "Base started"})) << "the old object stays until the editor goes down";
	}

	TEST_F(ModuleManager, EveryEditorHasModulesOfItsOwn)
	{
		FModuleManager::LoadModuleChecked<FBaseModule>("TestBase");
		Restart();
		EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded("TestBase"));
		FModuleManager::LoadModuleChecked<FBaseModule>("TestBase");
		EXPECT_EQ(ModuleEvents, (std::vector<std::string>{"Base started", "Base destroyed", "Base started"}));
	}
}
