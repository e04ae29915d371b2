// Copyright Velmorant. All Rights Reserved.

using UnrealBuildTool;

public class VelmorantProEditorTests : ModuleRules
{
	public VelmorantProEditorTests(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		// Nobody includes headers of this module: all could stand in either list.
		PublicDependencyModuleNames.AddRange(new[]
		{
			"Core",
			"CoreUObject",
			"Engine"
		});

		PrivateDependencyModuleNames.AddRange(new[]
		{
			"VelmorantProEditor",
			"VelmorantPro",
			"VelmorantProUI",
			"VelmorantSDK",
			"Slate",
			"SlateCore",
			"UMG",
			"InputCore",
			"Projects",
			"ToolMenus",
			"ToolWidgets",
			"UnrealEd",
			"EditorSubsystem",
			"EditorFramework",
			"AssetDefinition",
			"AssetTools",
			"AssetRegistry",
			"DeveloperSettings",
			"EditorScriptingUtilities",
			"PropertyEditor",
			"PlacementMode",
			"VariantManagerContent"
		});
	}
}
