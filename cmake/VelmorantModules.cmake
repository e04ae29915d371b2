# Copyright Velmorant. All Rights Reserved.
# How a module of the engine surface, a companion or the product becomes a CMake target.
#
# Each module is an OBJECT library (static libraries would drop the object files that only register themselves at load time).
# A target sees the include folders of the modules that it names and of those that they name for their users, as with the engine's
# build tool: any other include does not compile. It is linked with all that stands below.

function(velmorant_add_if_present Folder)
	if(EXISTS ${CMAKE_SOURCE_DIR}/${Folder}/CMakeLists.txt)
		add_subdirectory(${CMAKE_SOURCE_DIR}/${Folder} ${CMAKE_BINARY_DIR}/${Folder})
	elseif(NOT VELMORANT_DEV)
		message(FATAL_ERROR "${Folder} has no CMakeLists.txt")
	endif()
endfunction()

# The named modules and those below them, each behind its own.
#   Kind  DEPENDENCIES for all that must be linked, VISIBLE for those whose headers are seen through the named ones
function(velmorant_collect OutVar Kind)
	set(Result "")
	foreach(Module ${ARGN})
		if(NOT TARGET ${Module})
			message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR} names ${Module}, but no module built before is called so.")
		endif()
		get_property(Below GLOBAL PROPERTY VELMORANT_${Kind}_${Module})
		list(APPEND Result ${Below} ${Module})
	endforeach()
	list(REMOVE_DUPLICATES Result)
	set(${OutVar} ${Result} PARENT_SCOPE)
endfunction()

# Host-facing headers of the modules: for the engine surface itself, programs and tests; never for the product or the companions.
function(velmorant_see_internals Name)
	foreach(Module ${ARGN})
		if(IS_DIRECTORY ${CMAKE_SOURCE_DIR}/Host/Engine/${Module}/Internal)
			target_include_directories(${Name} PRIVATE ${CMAKE_SOURCE_DIR}/Host/Engine/${Module}/Internal)
		endif()
	endforeach()
endfunction()

# What the modules' header tools write stands before Name compiles.
function(velmorant_await_reflection Name)
	foreach(Module ${ARGN})
		get_property(Reflection GLOBAL PROPERTY VELMORANT_REFLECTION_TARGETS_${Module})
		if(Reflection)
			add_dependencies(${Name} ${Reflection})
		endif()
	endforeach()
endfunction()

# Writes down what a target names and sees. Tests hold it against what its sources include.
function(velmorant_record_layer Name Kind Public Private Sources)
	list(JOIN Public " " Public)
	list(JOIN Private " " Private)
	list(JOIN Sources "\nsource " Sources)
	set(Includes "$<JOIN:$<REMOVE_DUPLICATES:$<TARGET_PROPERTY:${Name},INCLUDE_DIRECTORIES>>,\ninclude >")
	set_property(GLOBAL APPEND_STRING PROPERTY VELMORANT_LAYERS
		"${Kind} ${Name}\nfolder ${CMAKE_CURRENT_SOURCE_DIR}\npublic ${Public}\nprivate ${Private}\ninclude ${Includes}\nsource ${Sources}\n")
endfunction()

function(velmorant_write_layers)
	get_property(Layers GLOBAL PROPERTY VELMORANT_LAYERS)
	file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/Layers.txt CONTENT "${Layers}")
endfunction()

# Runs the header tool over the module's reflected headers and compiles what it writes.
function(velmorant_reflect Name ReflectedHeaders Dependencies)
	set(OutputDir ${CMAKE_BINARY_DIR}/Generated/${Name})
	set(Manifest ${CMAKE_BINARY_DIR}/Generated/${Name}.manifest)
	set(Lines "module ${Name}\n")
	set(Outputs "")
	set(Sources "")
	foreach(Header ${ReflectedHeaders})
		string(REGEX REPLACE "^.*/(Public|Internal|Private)/" "" IncludePath ${Header})
		string(APPEND Lines "header ${IncludePath} ${Header}\n")
		get_filename_component(Base ${Header} NAME_WE)
		list(APPEND Outputs ${OutputDir}/${Base}.generated.h ${OutputDir}/${Base}.gen.cpp)
		list(APPEND Sources ${OutputDir}/${Base}.gen.cpp)
	endforeach()
	file(CONFIGURE OUTPUT ${Manifest} CONTENT "${Lines}" @ONLY)
	set(References "")
	set(ReferencedHeaders "")
	foreach(Dependency ${Dependencies})
		get_property(DependencyManifest GLOBAL PROPERTY VELMORANT_MANIFEST_${Dependency})
		if(DependencyManifest)
			list(APPEND References --reference ${DependencyManifest})
			get_property(Headers GLOBAL PROPERTY VELMORANT_REFLECTED_${Dependency})
			list(APPEND ReferencedHeaders ${Headers})
		endif()
	endforeach()
	set_property(GLOBAL PROPERTY VELMORANT_MANIFEST_${Name} ${Manifest})
	set_property(GLOBAL PROPERTY VELMORANT_REFLECTED_${Name} ${ReflectedHeaders})
	add_custom_command(
		OUTPUT ${Outputs}
		COMMAND VelmorantHeaderTool --module ${Name} --output ${OutputDir} --manifest ${Manifest} ${References}
		DEPENDS VelmorantHeaderTool ${Manifest} ${ReflectedHeaders} ${ReferencedHeaders}
		COMMENT "Reflecting ${Name}"
		VERBATIM)
	add_custom_target(${Name}Reflection DEPENDS ${Outputs})
	target_sources(${Name} PRIVATE ${Sources})
	target_include_directories(${Name} PUBLIC ${OutputDir})
	add_dependencies(${Name} ${Name}Reflection)
	set_property(GLOBAL PROPERTY VELMORANT_REFLECTION_TARGETS_${Name} ${Name}Reflection)
endfunction()

# velmorant_engine_module(Name [DEPENDS Module...] [PRIVATE_DEPENDS Module...] [LIBRARIES Target...])
#   DEPENDS          the modules that its Public and Internal headers include; who uses it sees them too
#   PRIVATE_DEPENDS  the modules that only its sources include, or that must be there when it runs
#   LIBRARIES        packages that only its own sources use
#   MEASURED         it is optimised more than others in release builds
#   FLAT             it is a part of a program and has no Public, Internal and Private folders: users see all of its folder
# velmorant_module: the same for what is outside the engine, which sees no Internal folder.
function(velmorant_engine_module Name)
	velmorant_module(${Name} SEES_INTERNAL ${ARGN})
endfunction()

function(velmorant_own_folders Name bFlat)
	if(bFlat)
		target_include_directories(${Name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
		return()
	endif()
	target_include_directories(${Name} PUBLIC Public PRIVATE Private Internal)
	if(IS_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/Detail) # what Public headers and generated code are made of
		target_include_directories(${Name} PUBLIC Detail)
	endif()
endfunction()

function(velmorant_module Name)
	cmake_parse_arguments(Arg "SEES_INTERNAL;FLAT;MEASURED" "" "DEPENDS;PRIVATE_DEPENDS;LIBRARIES" ${ARGN})
	if(Arg_FLAT)
		file(GLOB_RECURSE Sources CONFIGURE_DEPENDS *.cpp)
		file(GLOB_RECURSE Headers CONFIGURE_DEPENDS *.h)
	else()
		file(GLOB_RECURSE Sources CONFIGURE_DEPENDS Private/*.cpp)
		file(GLOB_RECURSE Headers CONFIGURE_DEPENDS Public/*.h Public/*.inl Detail/*.h Internal/*.h Private/*.h)
	endif()
	set(Reflected "")
	foreach(Header ${Headers})
		file(STRINGS ${Header} Generated REGEX "^#include \".*\\.generated\\.h\"" LIMIT_COUNT 1)
		if(Generated)
			list(APPEND Reflected ${Header})
		endif()
	endforeach()
	set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${Headers})

	if(NOT Sources AND NOT Reflected)
		set(Sources ${CMAKE_SOURCE_DIR}/cmake/HeaderOnlyModule.cpp)
	endif()
	add_library(${Name} OBJECT ${Sources} ${Headers})
	set(Named ${Arg_DEPENDS} ${Arg_PRIVATE_DEPENDS})
	velmorant_collect(Dependencies DEPENDENCIES ${Named})
	velmorant_collect(VisibleToUsers VISIBLE ${Arg_DEPENDS})
	velmorant_collect(Visible VISIBLE ${Named})
	set_property(GLOBAL PROPERTY VELMORANT_DEPENDENCIES_${Name} ${Dependencies})
	set_property(GLOBAL APPEND PROPERTY VELMORANT_MODULES ${Name})
	set_property(GLOBAL PROPERTY VELMORANT_VISIBLE_${Name} ${VisibleToUsers})

	string(TOUPPER ${Name} Upper)
	target_compile_definitions(${Name} PUBLIC ${Upper}_API=)
	if(NOT Name STREQUAL "CoreUObject") # whose precompiled header the others could not use then
		target_compile_definitions(${Name} PRIVATE UE_MODULE_NAME="${Name}")
	endif()
	velmorant_own_folders(${Name} "${Arg_FLAT}")
	if(Arg_SEES_INTERNAL)
		velmorant_see_internals(${Name} ${Visible})
	endif()
	target_link_libraries(${Name} PUBLIC VelmorantBuild ${Arg_DEPENDS} PRIVATE ${Arg_PRIVATE_DEPENDS} ${Arg_LIBRARIES})
	velmorant_await_reflection(${Name} ${Visible})
	if(Reflected)
		velmorant_reflect(${Name} "${Reflected}" "${Visible}")
	endif()
	velmorant_record_layer(${Name} "$<IF:$<BOOL:${Arg_FLAT}>,part,module>" "${Arg_DEPENDS}" "${Arg_PRIVATE_DEPENDS}" "${Sources};${Headers}")
	velmorant_use_unity(${Name})
	if(Arg_MEASURED AND CMAKE_BUILD_TYPE STREQUAL "Release")
		target_compile_options(${Name} PRIVATE ${VELMORANT_MEASURED})
		velmorant_use_pch(${Name} "${Visible}" MeasuredPCH)
	else()
		velmorant_use_pch(${Name} "${Visible}")
	endif()
endfunction()

# Sources compile in batches, as the engine's build tool has it: those of a batch read their headers once.
function(velmorant_use_unity Name)
	set_target_properties(${Name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
endfunction()

# One precompiled header for everything above CoreUObject that is optimised alike. It is made in a target of its own: the compiler takes
# a precompiled header only where no macro differs that was there when it was made, and UE_MODULE_NAME differs in each module.
function(velmorant_use_pch Name Visible)
	set(From SharedPCH ${ARGN})
	list(GET From -1 From)
	if(NOT VELMORANT_PCH OR NOT "CoreUObject" IN_LIST Visible)
		return()
	endif()
	if(NOT TARGET ${From})
		velmorant_add_pch(${From})
		if(From STREQUAL "MeasuredPCH")
			target_compile_options(${From} PRIVATE ${VELMORANT_MEASURED})
		endif()
	endif()
	target_precompile_headers(${Name} REUSE_FROM ${From})
endfunction()

# velmorant_add_pch(Name [HEADERS Header...] [LIBRARIES Target...]): the shared precompiled header, and more of a kind of programs' own.
function(velmorant_add_pch Name)
	cmake_parse_arguments(Arg "" "" "HEADERS;LIBRARIES" ${ARGN})
	add_library(${Name} OBJECT ${CMAKE_SOURCE_DIR}/cmake/HeaderOnlyModule.cpp)
	target_link_libraries(${Name} PRIVATE VelmorantBuild CoreUObject ${Arg_LIBRARIES})
	target_precompile_headers(${Name} PRIVATE ${Arg_HEADERS} ${CMAKE_SOURCE_DIR}/cmake/SharedPCH.h)
endfunction()

# A program made of modules: it sees the headers of those that it names, Internal ones too, and has the objects of all below them.
#   PCH    the target whose precompiled header it takes, in place of the shared one
#   PARTS  its sources alone, as objects for a program and its tests
function(velmorant_program Name)
	cmake_parse_arguments(Arg "PARTS" "PCH" "SOURCES;MODULES;LIBRARIES" ${ARGN})
	velmorant_collect(Modules DEPENDENCIES ${Arg_MODULES})
	velmorant_collect(Visible VISIBLE ${Arg_MODULES})
	if(Arg_PARTS)
		add_library(${Name} OBJECT ${Arg_SOURCES})
	else()
		add_executable(${Name} ${Arg_SOURCES})
		foreach(Module ${Modules})
			target_sources(${Name} PRIVATE $<TARGET_OBJECTS:${Module}>)
		endforeach()
	endif()
	foreach(Module ${Arg_MODULES})
		target_include_directories(${Name} PRIVATE $<TARGET_PROPERTY:${Module},INTERFACE_INCLUDE_DIRECTORIES>)
		target_compile_definitions(${Name} PRIVATE $<TARGET_PROPERTY:${Module},INTERFACE_COMPILE_DEFINITIONS>)
	endforeach()
	velmorant_see_internals(${Name} ${Visible})
	velmorant_await_reflection(${Name} ${Visible})
	target_link_libraries(${Name} PRIVATE VelmorantBuild ${Arg_LIBRARIES})
	velmorant_record_layer(${Name} program "" "${Arg_MODULES}" "${Arg_SOURCES}")
	velmorant_use_unity(${Name})
	velmorant_use_pch(${Name} "${Visible}" ${Arg_PCH})
endfunction()
