// Copyright Velmorant. All Rights Reserved.

using UnrealBuildTool;

public class VelmorantProEditorTests : ModuleRules
{
	public VelmorantProEditorTests(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

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
			"UnrealEd",
			"EditorSubsystem",
			"EditorFramework",
			"AssetDefinition",
			"AssetTools",
			"AssetRegistry",
			"ContentBrowser",
			"PropertyEditor",
			"PlacementMode",
			"VariantManagerContent"
		});
	}
}
