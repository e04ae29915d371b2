// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Brushes/SlateImageBrush.h"

// For style sets that are filled in one function: define RootToContentDir as `Style->RootToContentDir` before use.
#define IMAGE_BRUSH(RelativePath, ...) FSlateImageBrush(RootToContentDir(RelativePath, TEXT(".png")), __VA_ARGS__)
