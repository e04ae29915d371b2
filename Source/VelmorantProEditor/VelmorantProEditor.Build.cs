// Copyright Velmorant. All Rights Reserved.

using UnrealBuildTool;

public class VelmorantProEditor : ModuleRules
{
	public VelmorantProEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		// Public headers derive from classes of these modules.
		PublicDependencyModuleNames.AddRange(new[]
		{
			"Core",
			"CoreUObject",
			"Engine",
			"UMG",
			"AssetDefinition",
			"UnrealEd",
			"VelmorantSDK",
			"VelmorantPro",
			"VelmorantProUI"
		});

		PrivateDependencyModuleNames.AddRange(new[]
		{
			"Slate",
			"SlateCore",
			"InputCore",
			"ApplicationCore",
			"Projects",
			"ToolMenus",
			"UMGEditor",
			"Blutility",
			"EditorScriptingUtilities",
			"EditorSubsystem",
			"ToolWidgets",
			"AssetTools",
			"AssetRegistry",
			"ContentBrowser",
			"PropertyEditor",
			"PlacementMode",
			"Settings",
			"VariantManagerContent",
			"DeveloperSettings"
		});
	}
}
