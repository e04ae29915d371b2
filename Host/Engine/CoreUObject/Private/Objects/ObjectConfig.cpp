// Copyright Velmorant. All Rights Reserved.
// Config properties: read when the class default object is made, written to the user's layer or to the project's default file.

#include "HostConfig.h"
#include "HostProblems.h"
#include "Logging/LogMacros.h"
#include "Misc/ConfigCacheIni.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogConfigObject, Log, All);

namespace ObjectConfig
{
	using FLines = TArray<TPair<FString, FString>>;

	bool IsConfig(const FProperty* Property)
	{
		return Property->HasAnyPropertyFlags(CPF_Config);
	}

	/** Global values belong to the class that declares them, others to the class of the object. */
	const UClass* GetSectionClass(const FProperty* Property, const UClass* Class)
	{
		return Property->HasAnyPropertyFlags(CPF_GlobalConfig) ? Property->GetOwnerClass() : Class;
	}

	/** Values of an array, or the one value, as the lines of a config file say them. */
	TArray<FString> ExportValues(const FProperty* Property, const UObject* Object)
	{
		TArray<FString> Values;
		const void* Value = Property->ContainerPtrToValuePtr(Object);
		UObject* Parent = const_cast<UObject*>(Object);
		if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
		{
			const FScriptArrayHelper Helper(Array, Value);
			for (int32 Index = 0; Index < Helper.Num(); ++Index)
			{
				const void* Element = Helper.GetRawPtr(Index);
				Array->Inner->ExportTextItem_Direct(Values.AddDefaulted_GetRef(), Element, Element, Parent, PPF_None);
			}
			return Values;
		}
		Property->ExportTextItem_Direct(Values.AddDefaulted_GetRef(), Value, Value, Parent, PPF_None);
		return Values;
	}

	/** Element is the property, or what its array holds. */
	void ReportUnreadable(const FProperty* Property, const FProperty* Element, const UClass* SectionClass, const FString& Value)
	{
		constexpr int32 MaxShown = 100; // characters
		const FString Section = SectionClass->GetPathName();
		const HostConfig::FPlace Place = HostConfig::FindLine(SectionClass->ClassConfigName.ToString(), Section, Property->GetName(), Value);
		const FString Shown = Value.Len() > MaxShown ? Value.Left(MaxShown) + TEXT("…") : Value;
		const FString Message = FString::Printf(TEXT("[%s] %s: '%s' is no %s"), *Section, *Property->GetName(), *Shown, *Element->GetCPPType());
		const TCHAR* const Remedy = TEXT("Correct the value, or remove the line.");
		if (Value.Len() >= NAME_SIZE)
		{
			HostProblems::Report(Place.File, Place.Line, Message, Remedy); // a slip of the pen is not as long as that
		}
		UE_LOG(LogConfigObject, Warning, TEXT("%s"), *HostProblems::ToString(FHostProblem{Place.File, Place.Line, Message, Remedy}));
	}

	void ImportArray(const FArrayProperty* Array, UObject* Object, const TArray<FString>& Values, const UClass* SectionClass)
	{
		FScriptArrayHelper Helper(Array, Array->ContainerPtrToValuePtr(Object));
		Helper.EmptyValues();
		for (const FString& Value : Values)
		{
			const int32 Index = Helper.AddValue();
			if (!Array->Inner->ImportText_Direct(*Value, Helper.GetRawPtr(Index), Object, PPF_None))
			{
				ReportUnreadable(Array, Array->Inner, SectionClass, Value);
				Helper.RemoveValues(Index);
			}
		}
	}

	void ReadProperty(const FProperty* Property, UObject* Object, const UClass* SectionClass, const FString& File)
	{
		const FString Section = SectionClass->GetPathName();
		if (const FArrayProperty* Array = CastField<FArrayProperty>(Property))
		{
			TArray<FString> Values;
			if (GConfig->GetArray(*Section, *Property->GetName(), Values, File) > 0)
			{
				ImportArray(Array, Object, Values, SectionClass);
			}
			return;
		}
		FString Value;
		if (GConfig->GetString(*Section, *Property->GetName(), Value, File) && !Property->ImportText_InContainer(*Value, Object, Object, PPF_None))
		{
			ReportUnreadable(Property, Property, SectionClass, Value);
		}
	}

	/** The same from every class in the chain, so that a section of a super class also speaks for those below. */
	void ReadChain(const FProperty* Property, UObject* Object, const UClass* Class, const TCHAR* Filename)
	{
		const UClass* Owner = Property->GetOwnerClass();
		if (Class != Owner && !Property->HasAnyPropertyFlags(CPF_GlobalConfig))
		{
			ReadChain(Property, Object, Class->GetSuperClass(), Filename);
		}
		const UClass* SectionClass = GetSectionClass(Property, Class);
		ReadProperty(Property, Object, SectionClass, Filename ? FString(Filename) : SectionClass->GetConfigName());
	}

	/** What Key is in one file, read alone, on top of Values. */
	void ApplyLayer(const FString& File, const FString& Section, const FString& Key, TArray<FString>& Values)
	{
		FConfigCacheIni Layer; // one of its own: GConfig's copies of single files do not see what others write
		TArray<FString> Entries;
		Layer.GetSection(*Section, Entries, File);
		for (const FString& Entry : Entries)
		{
			FString Name;
			FString Value;
			Entry.Split(TEXT("="), &Name, &Value, ESearchCase::CaseSensitive);
			const TCHAR Operation = Name.IsEmpty() ? TEXT(' ') : Name[0];
			const bool bOperation = FString(TEXT("+-.!")).Contains(FString::Chr(Operation));
			if ((bOperation ? Name.RightChop(1) : Name) != Key)
			{
				continue;
			}
			switch (bOperation ? Operation : TEXT(' '))
			{
				case TEXT('+'):
					Values.AddUnique(Value);
					break;
				case TEXT('.'):
					Values.Add(Value);
					break;
				case TEXT('-'):
					Values.Remove(Value);
					break;
				case TEXT('!'):
					Values.Reset();
					break;
				default:
					Values.Add(Value);
			}
		}
	}

	enum class ELayer
	{
		Default, // of the project
		User
	};

	/** What the layers below the one that is to be written say. */
	TArray<FString> ReadBelow(ELayer Layer, const FString& Config, const FString& Section, const FString& Key)
	{
		const FString Written = Layer == ELayer::Default ? HostConfig::GetDefaultFile(Config) : HostConfig::GetBranchFile(Config);
		TArray<FString> Values;
		for (const FString& File : HostConfig::GetLayers(Config))
		{
			if (File.Equals(Written))
			{
				break;
			}
			ApplyLayer(File, Section, Key, Values);
		}
		return Values;
	}

	bool Equal(const TArray<FString>& A, const TArray<FString>& B)
	{
		bool bEqual = A.Num() == B.Num();
		for (int32 Index = 0; bEqual && Index < A.Num(); ++Index)
		{
			bEqual = A[Index].Equals(B[Index]);
		}
		return bEqual;
	}

	/** The project's default file: all values, arrays element by element, and the base's elements that are gone. */
	void AddDefaultLines(const FProperty* Property, const TArray<FString>& Values, const TArray<FString>& Base, FLines& Lines)
	{
		const FString Name = Property->GetName();
		if (!Property->IsA<FArrayProperty>())
		{
			Lines.Emplace(Name, Values[0]);
			return;
		}
		for (const FString& Value : Base)
		{
			if (!Values.ContainsByPredicate([&Value](const FString& Other) { return Other.Equals(Value); }))
			{
				Lines.Emplace(TEXT("-") + Name, Value);
			}
		}
		for (const FString& Value : Values)
		{
			Lines.Emplace(TEXT("+") + Name, Value);
		}
	}

	/** The user's file: only what differs from the layers below; arrays as a whole. */
	void AddUserLines(const FProperty* Property, const TArray<FString>& Values, const TArray<FString>& Below, FLines& Lines)
	{
		const FString Name = Property->GetName();
		if (!Property->IsA<FArrayProperty>())
		{
			if (Below.IsEmpty() || !Below.Last().Equals(Values[0]))
			{
				Lines.Emplace(Name, Values[0]);
			}
			return;
		}
		if (Equal(Values, Below))
		{
			return;
		}
		Lines.Emplace(TEXT("!") + Name, FString(TEXT("ClearArray")));
		for (const FString& Value : Values)
		{
			Lines.Emplace(TEXT(".") + Name, Value);
		}
	}

	/** What to write of one object. */
	struct FRequest
	{
		const UObject* Object;
		ELayer Layer;
		FString SpecificFile; // empty: the file of the layer
		uint64 RequiredFlags; // of the properties
		const FProperty* OnlyProperty; // null: all
	};

	/** What could not be read would be lost: the object has defaults in its place. */
	bool CheckRead(const FString& Config, const FString& File)
	{
		const FString Unread = HostConfig::FindUnread(Config);
		if (!Unread.IsEmpty())
		{
			HostProblems::ReportNotWritten(File, FString::Printf(TEXT("the settings were not written: %s could not be read, and they are not known"), *Unread), TEXT("Put that file right and restart the editor."));
		}
		return Unread.IsEmpty();
	}

	/** One section: that of SectionClass, which owns its values or is the object's class. */
	bool WriteSection(const FRequest& Request, const UClass* SectionClass)
	{
		const UClass* Class = Request.Object->GetClass();
		const FString Config = SectionClass->ClassConfigName.ToString();
		const FString Section = SectionClass->GetPathName();
		FLines Lines;
		TArray<FString> OwnedKeys;
		for (const FProperty* Property : Class->GetAllProperties())
		{
			const bool bWanted = IsConfig(Property) && Property->HasAnyPropertyFlags(Request.RequiredFlags) && GetSectionClass(Property, Class) == SectionClass && (!Request.OnlyProperty || Property == Request.OnlyProperty);
			if (!bWanted)
			{
				continue;
			}
			OwnedKeys.Add(Property->GetName());
			const TArray<FString> Values = ExportValues(Property, Request.Object);
			const TArray<FString> Below = ReadBelow(Request.Layer, Config, Section, Property->GetName());
			if (Request.Layer == ELayer::Default)
			{
				AddDefaultLines(Property, Values, Below, Lines);
			}
			else
			{
				AddUserLines(Property, Values, Below, Lines);
			}
		}
		const FString LayerFile = Request.Layer == ELayer::Default ? HostConfig::GetDefaultFile(Config) : HostConfig::GetBranchFile(Config);
		const FString File = Request.SpecificFile.IsEmpty() ? LayerFile : Request.SpecificFile;
		const bool bWritten = CheckRead(Config, File) && HostConfig::UpdateSection(File, Section, Lines, OwnedKeys);
		HostConfig::ReloadBranch(Config);
		return bWritten;
	}

	/** Writes the sections of all classes that own config values of the object. */
	bool Write(const FRequest& Request)
	{
		const UClass* Class = Request.Object->GetClass();
		TArray<const UClass*> SectionClasses;
		for (const FProperty* Property : Class->GetAllProperties())
		{
			if (IsConfig(Property) && (!Request.OnlyProperty || Property == Request.OnlyProperty))
			{
				SectionClasses.AddUnique(GetSectionClass(Property, Class));
			}
		}
		bool bWritten = true;
		for (const UClass* SectionClass : SectionClasses)
		{
			bWritten = WriteSection(Request, SectionClass) && bWritten;
		}
		return bWritten;
	}

	void CopyToDefaultObject(const UObject* Object)
	{
		UObject* Default = Object->GetClass()->GetDefaultObject();
		for (const FProperty* Property : Object->GetClass()->GetAllProperties())
		{
			if (Default != Object && IsConfig(Property))
			{
				Property->CopyCompleteValue_InContainer(Default, Object);
			}
		}
	}
}

void UObject::LoadConfig(UClass* ConfigClass, const TCHAR* Filename, uint32, FProperty* PropertyToLoad)
{
	const UClass* Class = ConfigClass ? ConfigClass : GetClass();
	if (!GConfig || !Class->HasAnyClassFlags(CLASS_Config))
	{
		return;
	}
	for (const FProperty* Property : Class->GetAllProperties())
	{
		if (ObjectConfig::IsConfig(Property) && (!PropertyToLoad || Property == PropertyToLoad))
		{
			ObjectConfig::ReadChain(Property, this, Class, Filename);
		}
	}
}

void UObject::SaveConfig(uint64 RequiredPropertyFlags, const TCHAR* Filename, FConfigCacheIni*, bool bAllowCopyToDefaultObject)
{
	if (!GetClass()->HasAnyClassFlags(CLASS_Config))
	{
		return;
	}
	ObjectConfig::Write({this, ObjectConfig::ELayer::User, Filename ? FString(Filename) : FString(), RequiredPropertyFlags, nullptr});
	if (bAllowCopyToDefaultObject)
	{
		ObjectConfig::CopyToDefaultObject(this);
	}
}

FString UObject::GetDefaultConfigFilename() const
{
	return GetClass()->ClassConfigName.IsNone() ? FString() : HostConfig::GetDefaultFile(GetClass()->ClassConfigName.ToString());
}

bool UObject::TryUpdateDefaultConfigFile(const FString& SpecificFileLocation, bool bWarnIfFail)
{
	if (!GetClass()->HasAnyClassFlags(CLASS_Config))
	{
		return false;
	}
	const bool bWritten = ObjectConfig::Write({this, ObjectConfig::ELayer::Default, SpecificFileLocation, CPF_Config, nullptr});
	if (!bWritten && bWarnIfFail)
	{
		UE_LOG(LogConfigObject, Warning, TEXT("Failed to write the settings of %s to %s."), *GetClass()->GetPathName(),
			SpecificFileLocation.IsEmpty() ? *GetDefaultConfigFilename() : *SpecificFileLocation);
	}
	return bWritten;
}
