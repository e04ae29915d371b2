// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreTypes.h"

/** Stands where an allocator is named; there is only the heap. */
class FDefaultSetAllocator;

template<typename InElementType>
class TArray;

template<typename InElementType>
class TArrayView;

template<typename T>
using TConstArrayView = TArrayView<const T>;

template<typename InElementType, bool bInAllowDuplicateKeys = false>
struct DefaultKeyFuncs;

template<typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>>
class TSet;

template<typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;

template<typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator, typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, false>>
class TMap;

template<typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator, typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, true>>
class TMultiMap;
