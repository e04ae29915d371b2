# Copyright Velmorant. All Rights Reserved.
# Language level, warnings, sanitizers and coverage for every target, in one interface target.

option(VELMORANT_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(VELMORANT_COVERAGE "Build with coverage instrumentation" OFF)
option(VELMORANT_FUZZ "Build the fuzz targets, and what they need, with clang's sanitizers and coverage feedback" OFF)
option(VELMORANT_SURFACE "Build objects that the check of the engine surface can read (Tests/SurfaceCheck)" OFF)
option(VELMORANT_DEV "Allow folders that do not exist yet (while the tree is being built up)" OFF)
option(VELMORANT_PCH "Use precompiled headers" ON)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

if(NOT CMAKE_BUILD_TYPE)
	set(CMAKE_BUILD_TYPE Release)
endif()
# Optimising is most of a build. Modules whose speed people feel say MEASURED and get more than the others, programs' ways in and tests less.
set(CMAKE_CXX_FLAGS_RELEASE "-O1 -DNDEBUG")
set(VELMORANT_MEASURED -O2)
set(VELMORANT_UNMEASURED -O0)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
	set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
	add_link_options(-fuse-ld=mold)
endif()

add_library(VelmorantBuild INTERFACE)
# Paths in messages (assertions, mainly) start at the project.
target_compile_options(VelmorantBuild INTERFACE -Wall -Wextra -Wshadow -Werror -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
	# The engine's compilers treat a missing 'override' as an error; -fpch-preprocess lets ccache see through precompiled headers.
	# -Wrestrict reports the standard library's own strings when optimising.
	# -Wsubobject-linkage takes every source of a unity batch for a header.
	target_compile_options(VelmorantBuild INTERFACE -Wsuggest-override -fpch-preprocess -Wno-restrict -Wno-subobject-linkage)
	# Objects live in memory that is zeroed before their constructors run.
	target_compile_options(VelmorantBuild INTERFACE -fno-lifetime-dse)
else()
	# Reflected members may be private and used by reflection alone.
	target_compile_options(VelmorantBuild INTERFACE -Wsuggest-override -Winconsistent-missing-override -Wno-unused-private-field)
endif()
# Arrays of object pointers and of their wrappers are looked at as one another, as in the engine.
target_compile_options(VelmorantBuild INTERFACE -fno-strict-aliasing)
target_compile_definitions(VelmorantBuild INTERFACE
	WITH_EDITOR=1 WITH_EDITORONLY_DATA=1 WITH_CASE_PRESERVING_NAME=1 DO_CHECK=1 UE_BUILD_DEVELOPMENT=1 PLATFORM_LINUX=1)

if(VELMORANT_SANITIZE)
	target_compile_options(VelmorantBuild INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
	add_link_options(-fsanitize=address,undefined)
endif()
if(VELMORANT_FUZZ)
	# Functions are called through reflection by another type than their own, and objects live in memory of no type yet. Checks of each access
	# to memory are left to the address sanitizer, and the tracing of each comparison, up to 60 % of a target's time, to the dictionaries.
	set(FuzzFlags -fsanitize=fuzzer-no-link,address,undefined
		-fno-sanitize=function,vptr,null,alignment,object-size,nonnull-attribute,returns-nonnull-attribute -fno-sanitize-coverage=trace-cmp)
	target_compile_options(VelmorantBuild INTERFACE ${FuzzFlags} -fno-sanitize-recover=all -fno-omit-frame-pointer)
	target_compile_definitions(VelmorantBuild INTERFACE __SANITIZE_ADDRESS__=1) # as g++ has it
	add_link_options(${FuzzFlags})
endif()
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
	set(VELMORANT_SURFACE OFF) # others may save calls in ways that the check does not know
endif()
if(VELMORANT_SURFACE)
	# A section for each function and variable, and no call that the compiler saves itself.
	target_compile_options(VelmorantBuild INTERFACE -ffunction-sections -fdata-sections -fno-inline -fno-ipa-pure-const -fno-ipa-modref -fno-ipa-reference)
endif()
if(VELMORANT_COVERAGE)
	target_compile_options(VelmorantBuild INTERFACE --coverage)
	add_link_options(--coverage)
endif()
