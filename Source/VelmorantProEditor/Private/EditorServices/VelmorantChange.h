// Copyright Velmorant. All Rights Reserved.

#pragma once

class UObject;
class UScriptStruct;

/** Changes of assets and of actors that a designer must be able to save and to undo. */
namespace VelmorantChange
{
	/**
	 * To be called before Object changes: its package gets dirty, and the open transaction records what the object is.
	 * Objects that other tools made may lack RF_Transactional; they get it, or undo would leave them as they are.
	 */
	void Begin(UObject& Object);

	/** Whether two structs hold the same to the letter. */
	bool AreSame(const UScriptStruct& Struct, const void* Left, const void* Right);

	/** Gives Member, a reflected struct of Object, another value. One that it has already is no change. */
	template<typename StructType>
	void Write(UObject& Object, StructType& Member, const StructType& Value)
	{
		if (!AreSame(*StructType::StaticStruct(), &Member, &Value))
		{
			Begin(Object);
			Member = Value;
		}
	}
}
