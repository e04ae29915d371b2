// Copyright Velmorant. All Rights Reserved.

#include "HeaderToolRun.h"

#include <gtest/gtest.h>

namespace RejectedHeaders
{
	struct FCase
	{
		const char* Behaviour;
		std::string Source;
		std::string Expected; // all messages, without the line end of the last
	};

	/** What other headers of the module, and a module below it, offer. */
	void AddSurroundings(FHeaderToolRun& Run)
	{
		Run.AddHeader("Module", "Types.h", R"(#include "Types.generated.h"
UENUM(BlueprintType)
enum class EByte : uint8 { A };
UENUM()
enum class EWide { A };
UENUM()
enum EPlain : int { Plain_A };
USTRUCT(BlueprintType)
struct FShown { GENERATED_BODY() };
USTRUCT()
struct FNotShown { GENERATED_BODY() };
UINTERFACE()
class UTalker : public UInterface { GENERATED_BODY() };
class ITalker
{
	GENERATED_BODY()
public:
	UFUNCTION(BlueprintNativeEvent)
	void Talk();
};
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FMany);
)");
		Run.AddHeader("Below", "Base.h", R"(#include "Base.generated.h"
UCLASS()
class UBase : public UObject
{
	GENERATED_BODY()
public:
	UFUNCTION()
	void FromBase();
	UPROPERTY()
	int32 BaseSize;
};
UCLASS()
class AActor : public UObject { GENERATED_BODY() };
)");
	}

	void Check(const std::vector<FCase>& Cases)
	{
		for (const FCase& Case : Cases)
		{
			SCOPED_TRACE(Case.Behaviour);
			FHeaderToolRun Run;
			AddSurroundings(Run);
			Run.AddHeader("Module", "X.h", Case.Source);
			const FHeaderToolRun::FResult Result = Run.Generate("Module");
			EXPECT_EQ(Result.Errors, Case.Expected + "\n");
			EXPECT_EQ(Result.ExitStatus, 1);
			EXPECT_FALSE(Run.Folder.Exists("Out")) << "output was written for a module with errors";
		}
	}
}

using RejectedHeaders::Check;

TEST(RejectedHeaders, NameThePlaceOfBrokenText)
{
	Check({
		{"comment without end", FileWith("\n/* open\n\n"), "X.h(4,1): error: this comment is never closed; end it with '*/'."},
		{"string without end", FileWith("const char* A = \"open;\n"), "X.h(3,17): error: this string is not closed on its line; add the missing \"."},
		{"raw string without end", FileWith("const char* A = R\"x(open)\";"), "X.h(3,17): error: this raw string is never closed; end it with ')x\"'."},
		{"brace without end", FileWith("UCLASS()\nclass UX : public UObject\n{\n\tGENERATED_BODY()\n"), "X.h(5,1): error: '{' is never closed; add the missing '}'."},
		{"parenthesis without end", ClassWith("UFUNCTION(\nvoid A();"), "X.h(8,10): error: '(' is not closed before the '}' in line 10; balance the brackets."},
		{"brace too many", FileWith("}"), "X.h(3,1): error: '}' closes nothing; remove it or add the missing '{'."},
		{"#if without end", FileWith("#if WITH_EDITOR\nint A;"), "X.h(3,1): error: '#if WITH_EDITOR' is never closed; add the missing '#endif'."},
		{"#endif without beginning", FileWith("#endif"), "X.h(3,1): error: '#endif' closes nothing; remove it or add the missing '#if'."},
		{"template arguments without end", ClassWith("UPROPERTY()\nTArray<int32 A;"), "X.h(9,1): error: the template arguments of 'TArray' are never closed; add the missing '>'."},
		{"specifiers run together", ClassWith("UPROPERTY(EditAnywhere Transient)\nint32 A;"), "X.h(8,24): error: expected ',' between the specifiers of UPROPERTY(), but found 'Transient'."},
		{"macro without variable", ClassWith("UPROPERTY()"), "X.h(9,1): error: expected a type, but found '}'."},
	});
}

TEST(RejectedHeaders, NeedTheirGeneratedHeaderAsLastInclude)
{
	const std::string Type = "USTRUCT()\nstruct FX { GENERATED_BODY() };\n";
	Check({
		{"missing", "#pragma once\n" + Type, "X.h(2,1): error: this header declares reflected types, but does not include \"X.generated.h\"; add it as the last include."},
		{"not last", "#include \"X.generated.h\"\n#include \"Other.h\"\n" + Type, "X.h(2,1): error: \"Other.h\" is included after \"X.generated.h\", which must be the last include; move it up."},
		{"of another header", "#include \"Y.generated.h\"\n" + Type, "X.h(1,1): error: \"Y.generated.h\" belongs to another header; include \"X.generated.h\"."},
	});
}

TEST(RejectedHeaders, HaveUnknownSpecifiers)
{
	Check({
		{"slip of the pen", ClassWith("UFUNCTION(BlueprintCalable)\nvoid A();"), "X.h(8,11): error: unknown specifier 'BlueprintCalable' in UFUNCTION(); did you mean 'BlueprintCallable'?"},
		{"metadata in the wrong place", ClassWith("UPROPERTY(BindWidget)\nint32 A;"), "X.h(8,11): error: unknown specifier 'BindWidget' in UPROPERTY(); remove it, or write meta=(BindWidget) if it is metadata."},
		{"of a parameter, in its line", ClassWith("UFUNCTION()\nvoid A(int32 One,\n\tUPARAM(reff) int32& Two);"), "X.h(10,9): error: unknown specifier 'reff' in UPARAM(); did you mean 'Ref'?"},
		{"that the engine knows", ClassWith("UFUNCTION(Server,\n\tReliable)\nvoid A();"),
			"X.h(8,11): error: 'Server' in UFUNCTION() is known to the engine, not supported here; remove it.\n"
			"X.h(9,2): error: 'Reliable' in UFUNCTION() is known to the engine, not supported here; remove it."},
		{"of a key", ClassWith("UPROPERTY(meta = (BindWidgt))\nint32 A;"), "X.h(8,19): error: unknown metadata key 'BindWidgt' in UPROPERTY(); did you mean 'BindWidget'?"},
		{"of an enumerator", FileWith("UENUM()\nenum class EX : uint8 { A UMETA(DisplayNam = \"a\") };"), "X.h(4,33): error: unknown metadata key 'DisplayNam' in UMETA(); did you mean 'DisplayName'?"},
		{"specifier among metadata", ClassWith("UPROPERTY(meta = (Transient))\nint32 A;"), "X.h(8,19): error: 'Transient' in UPROPERTY() is no metadata; write it outside of meta=(…)."},
		{"value too many", ClassWith("UFUNCTION(BlueprintPure = false)\nint32 A();"), "X.h(8,11): error: 'BlueprintPure' in UFUNCTION() takes no value; write BlueprintPure alone."},
		{"value missing", ClassWith("UPROPERTY(Category)\nint32 A;"), "X.h(8,11): error: 'Category' in UPROPERTY() needs a value; write Category=\"…\"."},
		{"before a result", ClassWith("UFUNCTION()\nUPARAM(DisplayName = \"Sum\") int32 A();"), "X.h(9,1): error: UPARAM() before a result is known to the engine, not supported here; remove it."},
		{"before a delegate", FileWith("UDELEGATE()\nDECLARE_DYNAMIC_DELEGATE(FX);"), "X.h(3,1): error: UDELEGATE() is known to the engine, not supported here; remove it, the DECLARE_DYNAMIC_ macro is all that is needed."},
		{"that contradict the export", FileWith("UCLASS(MinimalAPI)\nclass MODULE_API UX : public UObject { GENERATED_BODY() };"), "X.h(3,8): error: MinimalAPI exports the least of 'UX', but its _API macro exports all of it; keep one of the two."},
		{"world context that is no parameter", ClassWith("UFUNCTION(meta = (WorldContext = \"World\"))\nvoid A(UObject* Context);"), "X.h(8,19): error: WorldContext of 'A' names 'World', which is no parameter of it; name the one that leads to the world."},
	});
}

TEST(RejectedHeaders, HavePropertiesOfUnsupportedTypes)
{
	const auto Property = [](const std::string& Declaration) { return ClassWith("UPROPERTY()\n" + Declaration); };
	Check({
		{"standard vector", Property("std::vector<FName> A;"), "X.h(9,1): error: UPROPERTY type 'std::vector<FName>' is not supported here; use TArray<FName>."},
		{"standard string", Property("std::string A;"), "X.h(9,1): error: UPROPERTY type 'std::string' is not supported here; use FString."},
		{"size_t", Property("size_t A;"), "X.h(9,1): error: UPROPERTY type 'size_t' is not supported here; use int64."},
		{"built-in words", Property("unsigned long long A = 0;"), "X.h(9,1): error: UPROPERTY type 'unsigned long long' is not supported here; use uint64."},
		{"shared pointer", Property("TSharedPtr<FShown> A;"), "X.h(9,1): error: UPROPERTY type 'TSharedPtr<FShown>' is not supported here; shared pointers are not reflected; leave the macro out, or use TObjectPtr to a UObject."},
		{"function", Property("TFunction<void(int32, FName)> A;"), "X.h(9,1): error: UPROPERTY type 'TFunction<void(int32, FName)>' is not supported here; use a dynamic delegate."},
		{"nested container", Property("TMap<FName, TArray<int32>> A;"), "X.h(9,1): error: UPROPERTY type 'TMap<FName, TArray<int32>>' is a nested container, which is not supported; put the inner TArray into a USTRUCT."},
		{"container with allocator", Property("TArray<int32, TInlineAllocator<4>> A;"), "X.h(9,1): error: UPROPERTY type 'TArray<int32, TInlineAllocator<4>>' is not supported here; TArray takes 1 type(s) here, without allocator or key functions."},
		{"element of a container", Property("TArray<TSharedRef<int32>> A;"), "X.h(9,8): error: UPROPERTY type 'TSharedRef<int32>' is not supported here; shared pointers are not reflected; leave the macro out, or use TObjectPtr to a UObject."},
		{"C array", Property("int32 A[4];"), "X.h(9,7): error: UPROPERTY 'A' is a C array, which is not supported here; use TArray<int32>."},
		{"bit field", Property("uint8 bA : 1;"), "X.h(9,7): error: UPROPERTY 'bA' is a bit field, which is not supported here; use bool."},
		{"static variable", Property("static int32 A;"), "X.h(9,1): error: a static variable cannot be a UPROPERTY; remove 'static' or the UPROPERTY()."},
		{"two variables", Property("int32 A, B;"), "X.h(9,8): error: expected ';' after the UPROPERTY 'A'; declare one variable per UPROPERTY()."},
		{"function as property", Property("int32 A();"), "X.h(9,7): error: 'A' is a function; use UFUNCTION() instead of UPROPERTY()."},
		{"object by value", Property("UBase A;"), "X.h(9,1): error: UPROPERTY type 'UBase' is a class of objects, which are never values; use TObjectPtr<UBase>."},
		{"pointer to struct", Property("FShown* A;"), "X.h(9,1): error: UPROPERTY type 'FShown*' is a raw pointer to a struct, which is not supported; use the struct itself."},
		{"pointer to number", Property("int32* A;"), "X.h(9,1): error: UPROPERTY type 'int32*' is a raw pointer to something that is not a UObject, which is not supported; use the value."},
		{"pointer to native class", Property("class SWidget* A;"), "X.h(9,1): error: UPROPERTY type 'SWidget*' is a raw pointer to something that is not a UObject, which is not supported; leave the macro out, or point to a reflected class."},
		{"pointer to pointer", Property("UBase** A;"), "X.h(9,1): error: UPROPERTY type 'UBase**' is not supported here; use TArray for many, a reference for results."},
		{"reference", Property("int32& A;"), "X.h(9,1): error: UPROPERTY type 'int32&' is not supported here; use a value or an object pointer."},
		{"unknown class", Property("TObjectPtr<UNobody> A;"), "X.h(9,1): error: UPROPERTY type 'TObjectPtr<UNobody>' names 'UNobody', which is no reflected class of this module or of those it depends on; check the name, or put UCLASS() before it."},
		{"unknown struct", Property("FNobody A;"), "X.h(9,1): error: UPROPERTY type 'FNobody' is neither a USTRUCT nor a dynamic delegate of a known header; reflect it, or leave the macro out."},
		{"native enum", Property("ENobody A;"), "X.h(9,1): error: UPROPERTY type 'ENobody' is not a reflected enum; put UENUM() before it, in a header that includes its .generated.h."},
		{"plain enum as member", Property("EPlain A;"), "X.h(9,1): error: UPROPERTY type 'EPlain' is a plain enum, whose size is not fixed; use TEnumAsByte<EPlain> or make it an 'enum class … : uint8'."},
		{"TEnumAsByte over enum class", Property("TEnumAsByte<EByte> A;"), "X.h(9,1): error: UPROPERTY type 'TEnumAsByte<EByte>' wraps an enum class, which does not compile; use 'EByte' itself."},
		{"interface pointer", Property("ITalker* A;"), "X.h(9,1): error: UPROPERTY type 'ITalker*' is not supported here; use TObjectPtr<UObject>, and Cast<ITalker>() what it holds."},
		{"script interface", Property("TScriptInterface<ITalker> A;"), "X.h(9,1): error: UPROPERTY type 'TScriptInterface<ITalker>' is not supported here; use TObjectPtr<UObject>, and Cast<ITalker>() what it holds."},
		{"void", Property("void A;"), "X.h(9,1): error: UPROPERTY type 'void' is not supported here; use a reflected type, or leave the macro out."},
	});
}

TEST(RejectedHeaders, ShowBlueprintsWhatTheyCannotUse)
{
	Check({
		{"private variable", ClassWith("private:\nUPROPERTY(BlueprintReadOnly)\nint32 A;"), "X.h(9,11): error: BlueprintReadOnly on the private UPROPERTY 'A' needs meta=(AllowPrivateAccess=\"true\"); add it, or make the variable protected or public."},
		{"private because of GENERATED_BODY", FileWith("UCLASS()\nclass UX : public UObject\n{\nGENERATED_BODY()\nUPROPERTY(BlueprintReadWrite)\nint32 A;\n};"), "X.h(7,11): error: BlueprintReadWrite on the private UPROPERTY 'A' needs meta=(AllowPrivateAccess=\"true\"); add it, or make the variable protected or public."},
		{"number", ClassWith("UPROPERTY(BlueprintReadOnly)\nuint32 A;"), "X.h(9,1): error: UPROPERTY type 'uint32' is not known to Blueprints; use int32, int64 or uint8."},
		{"struct", ClassWith("UFUNCTION(BlueprintCallable)\nFNotShown A();"), "X.h(9,1): error: return value of 'A': type 'FNotShown' is not known to Blueprints; write USTRUCT(BlueprintType) before 'struct FNotShown'."},
		{"enum that is no byte", ClassWith("UFUNCTION(BlueprintPure)\nstatic bool A(EWide B);"), "X.h(9,15): error: parameter 'B' of 'A': type 'EWide' is not known to Blueprints, whose enums are bytes; declare it as 'enum class EWide : uint8'."},
		{"assignable number", ClassWith("UPROPERTY(BlueprintAssignable)\nint32 A;"), "X.h(8,11): error: BlueprintAssignable on UPROPERTY 'A' is only for multicast delegates; remove it, or declare the type by DECLARE_DYNAMIC_MULTICAST_DELEGATE."},
		{"pure function without result", ClassWith("UFUNCTION(BlueprintPure)\nvoid A(int32 B);"), "X.h(8,11): error: the BlueprintPure function 'A' returns nothing; give it a result, or make it BlueprintCallable."},
	});
}

TEST(RejectedHeaders, HaveFunctionsThatCannotBeReflected)
{
	const auto Function = [](const std::string& Declaration) { return ClassWith("UFUNCTION()\n" + Declaration); };
	Check({
		{"overloads", ClassWith("UFUNCTION()\nvoid A();\nUFUNCTION()\nvoid a(int32 B);"), "X.h(11,6): error: UFUNCTION 'a' has the name of the UFUNCTION in line 9 (case does not count): reflected functions cannot be overloaded; rename one, or reflect only one."},
		{"function of the super class", FileWith("UCLASS()\nclass UX : public UBase\n{\nGENERATED_BODY()\npublic:\nUFUNCTION()\nvoid FromBase();\n};"), "X.h(9,6): error: UFUNCTION 'FromBase' is a UFUNCTION of 'UBase' already; remove the macro here, overrides are found through the first declaration."},
		{"function of an interface", FileWith("UCLASS()\nclass UX : public UBase, public ITalker\n{\nGENERATED_BODY()\npublic:\nUFUNCTION()\nvoid Talk();\n};"), "X.h(9,6): error: UFUNCTION 'Talk' belongs to the interface 'ITalker'; do not declare it again, override Talk_Implementation()."},
		{"parameter that shadows", ClassWith("UPROPERTY()\nint32 Size;\nUFUNCTION()\nstatic void A(int32 size);"), "X.h(11,21): error: parameter 'size' of 'A' has the name of the UPROPERTY 'UX::Size'; rename it, to 'Insize' for example."},
		{"parameter that shadows one of the super class", FileWith("UCLASS()\nclass UX : public UBase\n{\nGENERATED_BODY()\npublic:\nUFUNCTION()\nvoid A(int32 BaseSize);\n};"), "X.h(9,14): error: parameter 'BaseSize' of 'A' has the name of the UPROPERTY 'UBase::BaseSize'; rename it, to 'InBaseSize' for example."},
		{"parameter without name", Function("void A(int32);"), "X.h(9,8): error: a parameter of UFUNCTION 'A' (type 'int32') has no name; give it one."},
		{"parameter named like the result", Function("void A(int32 ReturnValue);"), "X.h(9,14): error: parameter 'ReturnValue' of 'A' has the name that is kept for the result; rename it."},
		{"two parameters of a name", Function("void A(int32 B, int32 b);"), "X.h(9,23): error: UFUNCTION 'A' has two parameters named 'b' (case does not count); rename one."},
		{"multicast delegate as parameter", Function("void A(FMany B);"), "X.h(9,8): error: parameter 'B' of 'A': type 'FMany' is a multicast delegate, which cannot be passed; use a DECLARE_DYNAMIC_DELEGATE type."},
		{"rvalue reference", Function("void A(FString&& B);"), "X.h(9,8): error: parameter 'B' of 'A': type 'FString&&' is not supported here; use a value or a const reference."},
		{"C array as parameter", Function("void A(int32 B[4]);"), "X.h(9,14): error: parameter 'B' is a C array, which is not supported here; use TArray<int32>."},
		{"string pointer", Function("void A(const TCHAR* B);"), "X.h(9,8): error: parameter 'B' of 'A': type 'const TCHAR*' is not supported here; use FString."},
		{"standard type as result", Function("std::map<int, int> A();"), "X.h(9,1): error: return value of 'A': type 'std::map<int, int>' is not supported here; use TMap<…>."},
		{"constructor", Function("UX();"), "X.h(9,1): error: 'UX' after UFUNCTION() has no return type; constructors and destructors cannot be reflected."},
		{"variable", Function("int32 A;"), "X.h(9,7): error: expected a function after UFUNCTION(), but 'A' is none; use UPROPERTY() for a variable."},
		{"abstract function", Function("virtual void A() = 0;"), "X.h(9,18): error: the UFUNCTION 'A' must have a body: reflected classes are never abstract in C++; use PURE_VIRTUAL() or an empty body."},
		{"in a struct", FileWith("USTRUCT()\nstruct FX\n{\nGENERATED_BODY()\nUFUNCTION()\nvoid A();\n};"), "X.h(8,6): error: struct 'FX' cannot have the UFUNCTION 'A'; remove the macro, or move the function to a class."},
	});
}

TEST(RejectedHeaders, HaveEventsThatCannotBeGenerated)
{
	const auto Event = [](const std::string& Kind, const std::string& Declaration) { return ClassWith("UFUNCTION(" + Kind + ")\n" + Declaration); };
	Check({
		{"virtual implementable event", Event("BlueprintImplementableEvent", "virtual void A();"), "X.h(9,14): error: the BlueprintImplementableEvent 'A' cannot be virtual; remove 'virtual'."},
		{"virtual native event", Event("BlueprintNativeEvent", "virtual void A();"), "X.h(9,14): error: the BlueprintNativeEvent 'A' cannot be virtual; remove 'virtual' and override A_Implementation()."},
		{"static event", Event("BlueprintImplementableEvent", "static void A();"), "X.h(9,13): error: the BlueprintImplementableEvent 'A' cannot be static; remove 'static'."},
		{"event with body", Event("BlueprintNativeEvent", "void A() {}"), "X.h(9,6): error: the BlueprintNativeEvent 'A' cannot have a body, which is generated; write A_Implementation() instead."},
		{"private event", ClassWith("private:\nUFUNCTION(BlueprintImplementableEvent)\nvoid A();"), "X.h(10,6): error: the BlueprintImplementableEvent 'A' cannot be private; Blueprints could not override it. Make it protected or public."},
		{"both kinds", Event("BlueprintImplementableEvent, BlueprintNativeEvent", "void A();"), "X.h(8,40): error: a function is either a BlueprintNativeEvent or a BlueprintImplementableEvent; keep one of the two."},
		{"native body of an implementable event", Event("BlueprintImplementableEvent", "void A();\nvoid A_Implementation();"), "X.h(9,6): error: the BlueprintImplementableEvent 'A' has no native implementation; remove A_Implementation(), or make it a BlueprintNativeEvent."},
	});
}

TEST(RejectedHeaders, HaveInterfacesThatCannotBeDispatched)
{
	const std::string UClass = "UINTERFACE()\nclass UX : public UInterface { GENERATED_BODY() };\n";
	Check({
		{"function in the U class", FileWith("UINTERFACE()\nclass UX : public UInterface\n{\nGENERATED_BODY()\nUFUNCTION()\nvoid A();\n};\nclass IX { GENERATED_BODY() };"), "X.h(8,6): error: UFUNCTION 'A' cannot stand in 'UX'; move it to 'IX'."},
		{"function that is no event", FileWith(UClass + "class IX\n{\nGENERATED_BODY()\npublic:\nUFUNCTION()\nvoid A();\n};"), "X.h(10,6): error: UFUNCTION 'A' of an interface must be a BlueprintNativeEvent or a BlueprintImplementableEvent; add one of them, or remove the macro."},
		{"property", FileWith(UClass + "class IX\n{\nGENERATED_BODY()\nUPROPERTY()\nint32 A;\n};"), "X.h(9,7): error: interface 'IX' cannot have the UPROPERTY 'A'; put it into the implementing classes."},
		{"no I class", FileWith(UClass), "X.h(4,7): error: interface 'UX' has no 'class IX' in this header; add it with GENERATED_BODY()."},
		{"no body in the I class", FileWith(UClass + "class IX\n{\n};"), "X.h(5,7): error: 'IX' has no GENERATED_BODY(); add it as the first line of its body."},
		{"wrong super class", FileWith("UINTERFACE()\nclass UX : public UBase { GENERATED_BODY() };\nclass IX { GENERATED_BODY() };"), "X.h(4,19): error: interface 'UX' must derive from UInterface or from another interface, not from 'UBase'."},
		{"hand-written dispatcher", FileWith(UClass + "class IX\n{\nGENERATED_BODY()\npublic:\nUFUNCTION(BlueprintNativeEvent)\nvoid A();\nstatic void Execute_A(UObject* O);\n};"), "X.h(5,7): error: 'IX' declares Execute_A(), which is generated for the UFUNCTION 'A'; remove it."},
	});
}

TEST(RejectedHeaders, DeclareTypesTheReflectionSystemCannotHold)
{
	Check({
		{"no body", FileWith("UCLASS()\nclass UX : public UObject\n{\n};"), "X.h(4,7): error: 'UX' has no GENERATED_BODY(); add it as the first line of its body."},
		{"two bodies", ClassWith("GENERATED_BODY()"), "X.h(8,1): error: 'UX' has GENERATED_BODY already in line 6; keep one."},
		{"no super class", FileWith("UCLASS()\nclass UX { GENERATED_BODY() };"), "X.h(4,7): error: 'UX' has no super class; derive it from UObject ('class UX : public UObject')."},
		{"unknown super class", FileWith("UCLASS()\nclass UX : public UNobody { GENERATED_BODY() };"), "X.h(4,19): error: the super class 'UNobody' of 'UX' is no UCLASS of this module or of those it depends on; check the name, put it first among the bases, or reflect it."},
		{"super class that is not reflected", FileWith("class FNative {};\nUCLASS()\nclass UX : public FNative, public UObject { GENERATED_BODY() };"),
			"X.h(5,19): error: the super class 'FNative' of 'UX' is no UCLASS of this module or of those it depends on; check the name, put it first among the bases, or reflect it.\n"
			"X.h(5,35): error: 'UX' derives from a second class of objects, 'UObject'; only one is possible, next to interfaces."},
		{"super class of itself", FileWith("UCLASS()\nclass UX : public UX { GENERATED_BODY() };"), "X.h(4,19): error: 'UX' is its own super class; break the circle."},
		{"super struct that is not reflected", FileWith("USTRUCT()\nstruct FX : public FNative { GENERATED_BODY() };"), "X.h(4,20): error: 'FX' derives from 'FNative', which is no USTRUCT of this module or of those it depends on; reflect it, or hold it as a member."},
		{"wrong prefix", FileWith("UCLASS()\nclass FX : public UObject { GENERATED_BODY() };"), "X.h(4,7): error: the name of a class of objects must begin with 'U', but this one is called 'FX'; rename it."},
		{"wrong prefix of an actor", FileWith("UCLASS()\nclass UX : public AActor { GENERATED_BODY() };"), "X.h(4,7): error: the name of an actor class must begin with 'A', but this one is called 'UX'; rename it."},
		{"name that is taken", FileWith("USTRUCT()\nstruct FShown { GENERATED_BODY() };"), "X.h(4,8): error: 'FShown' is declared already at Types.h(9); rename one of the two."},
		{"class before struct macro", FileWith("USTRUCT()\nclass FX { GENERATED_BODY() };"), "X.h(4,7): error: USTRUCT() must stand before a struct, but 'FX' is a class."},
		{"only constructors with arguments", ClassWith("UX(int32 A);"), "X.h(4,7): error: the constructors of 'UX' all take arguments; objects are made by 'UX()' or 'UX(const FObjectInitializer&)', so declare one of these."},
		{"hand-written StaticClass", ClassWith("static UClass* StaticClass();"), "X.h(4,7): error: 'UX' declares StaticClass(), which is generated; remove it."},
		{"two properties of a name", ClassWith("UPROPERTY()\nint32 A;\nUPROPERTY()\nint32 a;"), "X.h(11,7): error: UPROPERTY 'a' has the name of a UPROPERTY of 'UX' (case does not count); rename one of the two."},
		{"property of the super class", FileWith("UCLASS()\nclass UX : public UBase\n{\nGENERATED_BODY()\nUPROPERTY()\nint32 BaseSize;\n};"), "X.h(8,7): error: UPROPERTY 'BaseSize' has the name of a UPROPERTY of 'UBase' (case does not count); rename one of the two."},
		{"two enumerators of a name", FileWith("UENUM()\nenum class EX : uint8\n{\nOne,\nONE\n};"), "X.h(7,1): error: 'EX' has two enumerators named 'ONE' (case does not count); rename one."},
		{"inside of a namespace", FileWith("namespace N\n{\nUSTRUCT()\nstruct FX { GENERATED_BODY() };\n}"), "X.h(5,1): error: USTRUCT inside of the namespace of line 3: reflected types must stand at file scope; move it out."},
		{"nested in a class", ClassWith("USTRUCT()\nstruct FX { GENERATED_BODY() };"),
			"X.h(8,1): error: USTRUCT inside of 'UX': a reflected type cannot be nested; move it to file scope."},
		{"macro in a class without macro", FileWith("class FX\n{\npublic:\nUFUNCTION()\nvoid A();\n};"), "X.h(6,1): error: UFUNCTION in a type that is not reflected; put UCLASS(), USTRUCT() or UINTERFACE() before the type."},
		{"macro at file scope", FileWith("UPROPERTY()\nint32 A;"), "X.h(3,1): error: UPROPERTY stands outside of a reflected class; move it into one."},
		{"under a condition of its own", ClassWith("#if UE_BUILD_DEVELOPMENT\nUPROPERTY()\nint32 A;\n#endif"), "X.h(9,1): error: UPROPERTY must not stand inside '#if UE_BUILD_DEVELOPMENT' (line 8): reflected code may only be surrounded by '#if WITH_EDITOR' or '#if WITH_EDITORONLY_DATA'; move it out."},
		{"in the other branch of a condition", ClassWith("#ifdef SOME\nint32 A;\n#else\nUFUNCTION()\nvoid B();\n#endif"), "X.h(11,1): error: UFUNCTION must not stand inside '#ifdef SOME' (line 8): reflected code may only be surrounded by '#if WITH_EDITOR' or '#if WITH_EDITORONLY_DATA'; move it out."},
	});
}

TEST(RejectedHeaders, DeclareEnumsOfTypesThatTheEngineDoesNotReflect)
{
	const std::string NoByte = "error: enum 'EX' is a BlueprintType, and Blueprints know only bytes; ";
	const std::string MakeByte = NoByte + "declare it as 'enum class EX : uint8'.";
	const auto Unknown = [](const std::string& Place, const std::string& Type) { return Place + "error: enum 'EX' has the underlying type '" + Type + "', which is not supported; use uint8, or another of int8 to int64 and uint16 to uint64."; };
	Check({
		{"for Blueprints, wider than a byte", FileWith("UENUM(BlueprintType)\nenum class EX : int32 { A };"), "X.h(4,17): " + MakeByte},
		{"for Blueprints, plain int", FileWith("UENUM(BlueprintType)\nenum class EX : int { A };"), "X.h(4,17): " + MakeByte},
		{"for Blueprints, nothing written", FileWith("UENUM(BlueprintType)\nenum class EX { A };"), "X.h(4,12): " + MakeByte},
		{"for Blueprints, unscoped", FileWith("UENUM(BlueprintType)\nenum EX : int64 { A };"), "X.h(4,11): " + NoByte + "write uint8, int or no underlying type."},
		{"scoped, plain int", FileWith("UENUM()\nenum class EX : int { A };"), "X.h(4,17): error: enum class 'EX' has the underlying type 'int', which only unscoped enums can have; use uint8, or int32 for more values."},
		{"a character type", FileWith("UENUM()\nenum class EX : char { A };"), Unknown("X.h(4,17): ", "char")},
		{"several words", FileWith("UENUM()\nenum EX : unsigned int { A };"), Unknown("X.h(4,11): ", "unsigned int")},
		{"with a qualifier", FileWith("UENUM()\nenum class EX : const uint8 { A };"), Unknown("X.h(4,17): ", "const uint8")},
		{"of the standard library", FileWith("UENUM()\nenum class EX : std::uint8_t { A };"), Unknown("X.h(4,17): ", "std::uint8_t")},
		{"in a namespace", FileWith("UENUM()\nnamespace EX { enum Type : long { A }; }"), Unknown("X.h(4,28): ", "long")},
	});
}

TEST(RejectedHeaders, DeclareDelegatesThatDoNotFitTheirMacro)
{
	Check({
		{"too few parameters", FileWith("DECLARE_DYNAMIC_DELEGATE_TwoParams(FX, int32, A);"), "X.h(3,1): error: DECLARE_DYNAMIC_DELEGATE_TwoParams declares 2 parameter(s), but 'FX' has 1; use the macro for that number."},
		{"wrong prefix", FileWith("DECLARE_DYNAMIC_MULTICAST_DELEGATE(OnX);"), "X.h(3,36): error: the name of delegate 'OnX' must begin with 'F'; call it 'FOnX'."},
		{"unsupported parameter", FileWith("DECLARE_DYNAMIC_DELEGATE_OneParam(FX, std::string, A);"), "X.h(3,39): error: parameter 'A' of 'FX': type 'std::string' is not supported here; use FString."},
		{"result of a multicast", FileWith("DECLARE_DYNAMIC_MULTICAST_DELEGATE_RetVal(int32, FX);"), "X.h(3,1): error: there is no macro DECLARE_DYNAMIC_MULTICAST_DELEGATE_RetVal; use DECLARE_DYNAMIC_DELEGATE or DECLARE_DYNAMIC_MULTICAST_DELEGATE with _OneParam to _NineParams."},
		{"parameter without name", FileWith("DECLARE_DYNAMIC_DELEGATE_OneParam(FX, int32);"), "X.h(3,44): error: expected ',' between type and name of a parameter of FX, but found ')'."},
	});
}

TEST(RejectedHeaders, AreReportedAllAtOnceInOrder)
{
	FHeaderToolRun Run;
	Run.AddHeader("Module", "X.h", ClassWith("UPROPERTY()\nstd::string A;\nUFUNCTION(Slow)\nvoid B(int32);\nUPROPERTY()\nTSharedPtr<int32> C[2];\nUPROPERTY()\nint32 Fine;"));
	Run.AddHeader("Module", "Y.h", "#include \"Y.generated.h\"\nUENUM()\nenum class EY : int32 { A };\nUCLASS()\nclass UY : public UZ { GENERATED_BODY() };\n");
	const FHeaderToolRun::FResult Result = Run.Generate("Module");
	EXPECT_EQ(Result.Errors,
		"X.h(9,1): error: UPROPERTY type 'std::string' is not supported here; use FString.\n"
		"X.h(10,11): error: unknown specifier 'Slow' in UFUNCTION(); remove it, or write meta=(Slow) if it is metadata.\n"
		"X.h(11,8): error: a parameter of UFUNCTION 'B' (type 'int32') has no name; give it one.\n"
		"X.h(13,19): error: UPROPERTY 'C' is a C array, which is not supported here; use TArray<TSharedPtr<int32>>.\n"
		"Y.h(5,19): error: the super class 'UZ' of 'UY' is no UCLASS of this module or of those it depends on; check the name, put it first among the bases, or reflect it.\n");
	EXPECT_EQ(Result.ExitStatus, 1);
}
