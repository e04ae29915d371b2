// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Model.h"

#include <map>

namespace HeaderTool
{
	class FDiagnostics;

	/**
	 * All reflected types of all headers by C++ name, and those that the object system brings along without a header of their own.
	 * Holds pointers into the headers, which must outlive it.
	 */
	class FTypeTable
	{
	public:
		/** Reports a type whose name is taken. */
		void Add(const FHeader& Header, FDiagnostics& Diagnostics);

		/** A UCLASS, or the U side of an interface; null if there is none of this name. */
		const FClass* FindClass(const std::string& CppName) const;
		const FClass* FindStruct(const std::string& CppName) const;

		/** By the name of the I class. */
		const FClass* FindInterface(const std::string& NativeName) const;

		/** By "EFoo" or, for enums in a namespace, "EFoo::Type". */
		const FEnum* FindEnum(const std::string& CppType) const;

		/** By plain name, looked up in Scope and its super classes first, or by "UFoo::FName". */
		const FDelegateType* FindDelegate(const std::string& Name, const FClass* Scope) const;
		const FHeader* FindDelegateHeader(const FDelegateType& Delegate) const;

		/** UObject and the other classes that the object system itself is made of. */
		static bool IsRootClass(const std::string& CppName);

		/** FVector and the other structs that are described by hand. */
		static bool IsBuiltInStruct(const std::string& CppName);

		const FClass* FindSuper(const FClass& Class) const;

		/** Class and its parsed super classes, nearest first; ends in front of one that is unknown, and when a class derives from itself. */
		std::vector<const FClass*> GetChain(const FClass& Class) const;
		bool DerivesFrom(const FClass& Class, const std::string& CppName) const;

	private:
		void AddName(const std::string& Name, const FHeader& Header, const FPlace& Place, FDiagnostics& Diagnostics);

		struct FDeclaration
		{
			std::string Path;
			FPlace Place;
		};

		std::map<std::string, FDeclaration> Declarations; // of all names
		std::map<std::string, const FClass*> Classes; // structs too: the names tell them apart
		std::map<std::string, const FEnum*> Enums;
		std::map<std::string, const FDelegateType*> Delegates; // "FName" or "UFoo::FName"
		std::map<const FDelegateType*, const FHeader*> DelegateHeaders;
	};
}
