// Copyright Velmorant. All Rights Reserved.

using UnrealBuildTool;

public class VelmorantProEditor : ModuleRules
{
	public VelmorantProEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		PCHUsage = PCHUsageMode.UseExplicitOrSharedPCHs;

		// Modules whose headers the public headers include.
		PublicDependencyModuleNames.AddRange(new[]
		{
			"Core",
			"CoreUObject",
			"Engine",
			"Slate",
			"SlateCore",
			"UMG",
			"VelmorantSDK"
		});

		// Modules that only the sources need, some through headers of others: EditorFramework by way of the actor factories.
		PrivateDependencyModuleNames.AddRange(new[]
		{
			"VelmorantPro",
			"VelmorantProUI",
			"InputCore",
			"ApplicationCore",
			"Projects",
			"ToolMenus",
			"ToolWidgets",
			"UMGEditor",
			"Blutility",
			"EditorScriptingUtilities",
			"UnrealEd",
			"EditorSubsystem",
			"EditorFramework",
			"AssetDefinition",
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
