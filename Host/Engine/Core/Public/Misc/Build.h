// Copyright Velmorant. All Rights Reserved.

#pragma once

// What kind of build this is. The build system sets the first group; the rest follows from being an editor.

#ifndef WITH_EDITOR
#define WITH_EDITOR 1
#endif
#ifndef WITH_EDITORONLY_DATA
#define WITH_EDITORONLY_DATA 1
#endif
#ifndef WITH_CASE_PRESERVING_NAME
#define WITH_CASE_PRESERVING_NAME 1
#endif
#ifndef DO_CHECK
#define DO_CHECK 1
#endif
#ifndef UE_BUILD_DEVELOPMENT
#define UE_BUILD_DEVELOPMENT 1
#endif

#define UE_BUILD_DEBUG 0
#define UE_BUILD_TEST 0
#define UE_BUILD_SHIPPING 0
#define UE_EDITOR 1
#define UE_GAME 0
#define UE_SERVER 0
#define WITH_ENGINE 1
#define DO_ENSURE 1
#define DO_GUARD_SLOW 0
#define NO_LOGGING 0
