# Copyright Velmorant. All Rights Reserved.
# The window's tests: they drive the real one, drawn to nowhere.
find_package(Qt6 REQUIRED COMPONENTS Widgets Svg Test)
set(Desktop ${CMAKE_SOURCE_DIR}/Host/Desktop)

velmorant_add_pch(DesktopTestPCH HEADERS ${CMAKE_SOURCE_DIR}/Tests/Desktop/TestHeaders.h LIBRARIES GTest::gmock Qt6::Widgets Qt6::Svg Qt6::Test)
target_include_directories(DesktopTestPCH PRIVATE ${Desktop})
target_compile_options(DesktopTestPCH PRIVATE ${VELMORANT_UNMEASURED})
target_compile_definitions(DesktopTestPCH PRIVATE QT_NO_KEYWORDS)

file(GLOB DesktopTestSources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/Tests/Desktop/*.cpp)
velmorant_program(DesktopTests
	SOURCES ${DesktopTestSources}
	MODULES
		Core CoreUObject Projects SlateCore Slate Engine UMG UnrealEd AssetTools VariantManagerContent PropertyEditor ContentBrowser
		VelmorantSDK VelmorantPro VelmorantProEditor Runtime CommandLine Toolkit
	LIBRARIES GTest::gmock Qt6::Widgets Qt6::Svg Qt6::Test HeaderToolCore
	PCH DesktopTestPCH)
target_sources(DesktopTests PRIVATE $<TARGET_OBJECTS:DesktopParts>)
target_compile_options(DesktopTests PRIVATE ${VELMORANT_UNMEASURED})
target_compile_definitions(DesktopTests PRIVATE QT_NO_KEYWORDS VELMORANT_SOURCE_DIR="${CMAKE_SOURCE_DIR}" VELMORANT_BINARY_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
target_include_directories(DesktopTests PRIVATE ${CMAKE_SOURCE_DIR}/Tests/Support ${Desktop})
add_dependencies(DesktopTests velmorant velmorant-editor)
add_test(NAME DesktopTests COMMAND DesktopTests --gtest_brief=1)
set_tests_properties(DesktopTests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# Once on a real X server, whose focus is not that of the platform that draws nowhere.
find_program(XVFB_RUN xvfb-run)
if(XVFB_RUN)
	add_test(NAME DesktopTestsOnX COMMAND ${XVFB_RUN} --auto-servernum $<TARGET_FILE:DesktopTests> --gtest_brief=1 --gtest_filter=WayOfTheDemo.*:QuestionDialogs.*)
	set_tests_properties(
		DesktopTestsOnX PROPERTIES
		ENVIRONMENT "QT_QPA_PLATFORM=xcb;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/Tests/Desktop/LeaksOfLibraries.txt")
endif()
