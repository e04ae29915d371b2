// Copyright Velmorant. All Rights Reserved.

#pragma once

class UClass;
class UEnum;
class UScriptStruct;

/** The reflected enum; generated code specialises it for each UENUM. */
template<typename EnumType>
UEnum* StaticEnum();
