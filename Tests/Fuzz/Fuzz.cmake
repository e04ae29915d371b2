# Copyright Velmorant. All Rights Reserved.
# The fuzz targets, as a fuzzer (preset "fuzz") and as a test of the inputs that are kept.
set(FuzzSources FuzzTargets.cpp FuzzEditor.cpp Targets/IniFuzz.cpp Targets/ServiceFuzz.cpp Targets/AssetFuzz.cpp Targets/LayoutFuzz.cpp
	Targets/ScriptFuzz.cpp Targets/DescriptorFuzz.cpp Targets/HeaderFuzz.cpp Targets/TextFuzz.cpp)
list(TRANSFORM FuzzSources PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
# What edits descriptors stands in a part of the program that needs far more than it does.
foreach(Source DescriptorEdit JsonInsert PlacedJson)
	set(Edit_${Source} ${CMAKE_SOURCE_DIR}/Host/Toolkit/Install/${Source}.cpp)
endforeach()
set(FuzzModules Core CoreUObject Projects Slate UMG UMGEditor Engine UnrealEd Blutility CommandLine VelmorantSDK VelmorantProUI VelmorantPro)
set(FuzzFolders ${CMAKE_CURRENT_LIST_DIR} ${CMAKE_SOURCE_DIR}/Host/Toolkit ${CMAKE_SOURCE_DIR}/Companions/VelmorantSDK/Private)
