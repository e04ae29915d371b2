# Copyright Velmorant. All Rights Reserved.
# What the compiler itself says of the sources: the product as one unity file, each of its headers alone, and code that the real
# engine refuses and so must this host.

# The product's sources in one translation unit: helpers and macros of one file must not get into the way of another's.
file(GLOB_RECURSE ModuleSources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/Source/VelmorantProEditor/Private/*.cpp)
set(UnityText "// Generated: every source of the module in one file.\n")
foreach(Source ${ModuleSources})
	string(APPEND UnityText "#include \"${Source}\"\n")
endforeach()
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/ModuleUnity.cpp CONTENT "${UnityText}" @ONLY)

# How a test compiles that unity file for itself, to hear of its uses of the companions.
file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/ModuleFlags.txt CONTENT "-std=c++20 -fsyntax-only -Wdeprecated-declarations
'-I$<JOIN:$<TARGET_PROPERTY:VelmorantProEditor,INCLUDE_DIRECTORIES>,'
'-I>'
'-D$<JOIN:$<TARGET_PROPERTY:VelmorantProEditor,COMPILE_DEFINITIONS>,'
'-D>'
'${CMAKE_CURRENT_BINARY_DIR}/ModuleUnity.cpp'
")
set_property(SOURCE Module/CompanionContractTest.cpp APPEND PROPERTY COMPILE_DEFINITIONS
	VELMORANT_COMPILER="${CMAKE_CXX_COMPILER}" VELMORANT_MODULE_FLAGS="${CMAKE_CURRENT_BINARY_DIR}/ModuleFlags.txt")

# Each header of a folder alone, before anything else. OutVar gets the sources that include them.
function(velmorant_headers_alone OutVar Folder)
	file(GLOB_RECURSE Headers CONFIGURE_DEPENDS ${Folder}/*.h)
	set(Sources "")
	foreach(Header ${Headers})
		string(MAKE_C_IDENTIFIER ${Header} Identifier)
		string(REGEX REPLACE "^.*_VelmorantProEditor_" "" Identifier ${Identifier})
		set(Source ${CMAKE_CURRENT_BINARY_DIR}/HeaderAlone_${Identifier}.cpp)
		file(CONFIGURE OUTPUT ${Source} CONTENT "// Generated: the header compiles alone.\n#include \"${Header}\"\n" @ONLY)
		list(APPEND Sources ${Source})
	endforeach()
	set(${OutVar} ${Sources} PARENT_SCOPE)
endfunction()

# The sanitizers look at programs that run: these compile once, in the other builds.
if(NOT VELMORANT_SANITIZE)
	velmorant_headers_alone(PrivateHeaders ${CMAKE_SOURCE_DIR}/Source/VelmorantProEditor/Private)
	add_library(ModuleSourceChecks OBJECT ${CMAKE_CURRENT_BINARY_DIR}/ModuleUnity.cpp ${PrivateHeaders})
	target_link_libraries(ModuleSourceChecks PRIVATE VelmorantBuild)
	target_compile_options(ModuleSourceChecks PRIVATE ${VELMORANT_UNMEASURED})
	target_include_directories(ModuleSourceChecks PRIVATE $<TARGET_PROPERTY:VelmorantProEditor,INCLUDE_DIRECTORIES>)
	target_compile_definitions(ModuleSourceChecks PRIVATE $<TARGET_PROPERTY:VelmorantProEditor,COMPILE_DEFINITIONS>)
	add_dependencies(ModuleSourceChecks VelmorantProEditor)

	# The public ones as another module would include them: it sees the public folder and the public dependencies, no more.
	velmorant_headers_alone(PublicHeaders ${CMAKE_SOURCE_DIR}/Source/VelmorantProEditor/Public)
	add_library(ModulePublicHeaders OBJECT ${PublicHeaders})
	target_link_libraries(ModulePublicHeaders PRIVATE VelmorantBuild)
	target_compile_options(ModulePublicHeaders PRIVATE ${VELMORANT_UNMEASURED})
	target_include_directories(ModulePublicHeaders PRIVATE $<TARGET_PROPERTY:VelmorantProEditor,INTERFACE_INCLUDE_DIRECTORIES>)
	target_compile_definitions(ModulePublicHeaders PRIVATE $<TARGET_PROPERTY:VelmorantProEditor,INTERFACE_COMPILE_DEFINITIONS>)
	add_dependencies(ModulePublicHeaders VelmorantProEditor)
endif()

# Code that must not compile. Each file states behind "// compiler: " a part of what the compiler must say of it. What most of them
# include is compiled once, in advance; the less that is, the faster each is read.
set(RefusedFlags ${CMAKE_CURRENT_BINARY_DIR}/RefusedFlags.txt)
set(RefusedHeader ${CMAKE_CURRENT_BINARY_DIR}/RefusedHeader.h)
file(GENERATE OUTPUT ${RefusedFlags} CONTENT "-std=c++20 -Wall -Wextra -Wsuggest-override -Werror
'-I$<JOIN:$<TARGET_PROPERTY:CoreUObject,INTERFACE_INCLUDE_DIRECTORIES>,'
'-I>'
'-D$<JOIN:$<TARGET_PROPERTY:CoreUObject,INTERFACE_COMPILE_DEFINITIONS>,'
'-D>'
")
file(CONFIGURE OUTPUT ${RefusedHeader} CONTENT "// Generated: what most of the sources that must not compile include.
#include \"Containers/EnumAsByte.h\"
#include \"CoreMinimal.h\"
#include \"Modules/ModuleInterface.h\"
" @ONLY)
add_custom_command(
	OUTPUT ${RefusedHeader}.gch
	COMMAND ${CMAKE_CXX_COMPILER} @${RefusedFlags} -x c++-header ${RefusedHeader} -o ${RefusedHeader}.gch -MD -MF ${RefusedHeader}.d
	DEPENDS ${RefusedHeader} ${RefusedFlags}
	DEPFILE ${RefusedHeader}.d
	COMMENT "Precompiling what refused sources include"
	VERBATIM)
add_custom_target(RefusedSourcesHeader ALL DEPENDS ${RefusedHeader}.gch)

function(velmorant_refused_sources Name Folder)
	file(GLOB Sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/Host/${Folder}/*.cpp)
	list(JOIN Sources "|" Sources)
	add_test(NAME ${Name} COMMAND ${CMAKE_COMMAND} "-DCOMPILER=${CMAKE_CXX_COMPILER}" "-DFLAGS=${RefusedFlags}"
		"-DHEADER=${RefusedHeader}" "-DSOURCES=${Sources}" -P ${CMAKE_CURRENT_SOURCE_DIR}/RefusedSources.cmake)
endfunction()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU") # whose words the fixtures state
	velmorant_refused_sources(RefusedSources Refused)

	# The check itself: what compiles, fails for another reason or states nothing is noticed, each with its own words.
	velmorant_refused_sources(RefusedSourcesNotices RefusedWrongly)
	set_tests_properties(RefusedSourcesNotices PROPERTIES PASS_REGULAR_EXPRESSION
		"IsAccepted.cpp compiles.*IsMisspelt.cpp must be refused with.*'FNama' was not declared.*StatesNoMessage.cpp does not state.*3 of 3 sources")
endif()

add_test(NAME BuildRules COMMAND ${CMAKE_COMMAND} -DCMAKE_FOLDER=${CMAKE_SOURCE_DIR}/cmake -P ${CMAKE_CURRENT_SOURCE_DIR}/BuildRules.cmake)
add_test(NAME Artwork COMMAND ${CMAKE_COMMAND} -DRESOURCES=${CMAKE_SOURCE_DIR}/Companions/VelmorantPro/Resources
	-DDRAWINGS=${CMAKE_SOURCE_DIR}/Host/Desktop/Resources -P ${CMAKE_CURRENT_SOURCE_DIR}/Artwork.cmake)
