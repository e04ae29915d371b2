// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "Math/Color.h"
#include "Math/Vector.h"
#include "Misc/AutomationEvent.h"
#include "Misc/EnumClassFlags.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

#include <source_location>

// Here and not in Misc/Build.h, which is precompiled: compiler caches overlook a macro that is new there.
#ifndef WITH_DEV_AUTOMATION_TESTS
#define WITH_DEV_AUTOMATION_TESTS 1
#endif

class FAutomationLog;
class FAutomationTestBase;
class FAutomationTestFramework;

/** Where a test can run, what it needs, and which kind of test it is: at least one context and exactly one filter. */
enum class EAutomationTestFlags : uint32
{
	None = 0,

	EditorContext = 0x00000001,
	ClientContext = 0x00000002,
	ServerContext = 0x00000004,
	CommandletContext = 0x00000008,
	ProgramContext = 0x00000010,

	NonNullRHI = 0x00000100,
	RequiresUser = 0x00000200,
	Disabled = 0x00010000,

	CriticalPriority = 0x00100000,
	HighPriority = 0x00200000,
	MediumPriority = 0x00400000,
	LowPriority = 0x00800000,

	SmokeFilter = 0x01000000,
	EngineFilter = 0x02000000,
	ProductFilter = 0x04000000,
	PerfFilter = 0x08000000,
	StressFilter = 0x10000000,
	NegativeFilter = 0x20000000,
};
ENUM_CLASS_FLAGS(EAutomationTestFlags);

inline constexpr EAutomationTestFlags EAutomationTestFlags_ApplicationContextMask = EAutomationTestFlags::EditorContext | EAutomationTestFlags::ClientContext | EAutomationTestFlags::ServerContext | EAutomationTestFlags::CommandletContext | EAutomationTestFlags::ProgramContext;
inline constexpr EAutomationTestFlags EAutomationTestFlags_FilterMask = EAutomationTestFlags::SmokeFilter | EAutomationTestFlags::EngineFilter | EAutomationTestFlags::ProductFilter | EAutomationTestFlags::PerfFilter | EAutomationTestFlags::StressFilter | EAutomationTestFlags::NegativeFilter;

namespace EAutomationExpectedMessageFlags
{
	enum MatchType
	{
		Exact,
		Contains,
	};
}
namespace EAutomationExpectedErrorFlags = EAutomationExpectedMessageFlags;

/** What a test that has run says of itself. */
class FAutomationTestExecutionInfo
{
public:
	const TArray<FAutomationExecutionEntry>& GetEntries() const { return Entries; }
	int32 GetErrorTotal() const { return Count(EAutomationEventType::Error); }
	void AddEvent(const FAutomationExecutionEntry& Entry) { Entries.Add(Entry); }

	bool bSuccessful = false;
	double Duration = 0.0; // seconds

private:
	int32 Count(EAutomationEventType Type) const;

	TArray<FAutomationExecutionEntry> Entries;
};

/** A step of a test that takes time. */
class IAutomationLatentCommand : public TSharedFromThis<IAutomationLatentCommand>
{
public:
	virtual ~IAutomationLatentCommand() = default;

	/** Once a frame. True when it is done; the next command's turn comes then. */
	virtual bool Update() = 0;
};

/** Calls once, after a delay in seconds from when its turn comes. */
class FDelayedFunctionLatentCommand : public IAutomationLatentCommand
{
public:
	explicit FDelayedFunctionLatentCommand(TFunction<void()> InCallback, float InDelay = 0.1f)
		: Callback(MoveTemp(InCallback))
		, Delay(InDelay)
	{
	}

	virtual bool Update() override;

private:
	TFunction<void()> Callback;
	float Delay;
	double StartTime = -1.0; // its turn has not come yet
};

/**
 * A test. There is one static object of each, made by the macros below.
 *
 * A test fails when RunTest returns false, when an error was added or logged, an ensure included, or when expected messages did not come.
 * Checks return whether they hold; one that does not adds an error. Beware: TestEqual ignores the case of strings, and FString's own
 * comparison, hence that of two FStrings in any of the templates, does so, too; TestEqualSensitive of pointers or views does not.
 *
 * Host: the engine looks up the stack for the place of an error; here the compiler names it, by way of the trailing arguments.
 */
class FAutomationTestBase
{
public:
	using FSourceLocation = std::source_location;

	FAutomationTestBase(const FString& InName, const bool bInComplexTask);
	virtual ~FAutomationTestBase();
	FAutomationTestBase(const FAutomationTestBase&) = delete;
	FAutomationTestBase& operator=(const FAutomationTestBase&) = delete;

	/** The name of the class, under which the framework knows the test. */
	FString GetTestName() const { return TestName; }
	virtual EAutomationTestFlags GetTestFlags() const = 0;
	virtual FString GetTestSourceFileName() const = 0;
	virtual int32 GetTestSourceFileLine() const = 0;

	virtual void AddError(const FString& InError, int32 StackOffset = 0, FSourceLocation Place = FSourceLocation::current());
	virtual void AddInfo(const FString& InLogItem, int32 StackOffset = 0, bool bCaptureStack = false);
	bool HasAnyErrors() const { return ExecutionInfo.GetErrorTotal() > 0; }

	/**
	 * Says beforehand that warnings or errors will be logged; those do not count then.
	 * @param Occurrences that many, else the test fails; 0 means at least one, less than 0 any number.
	 */
	void AddExpectedErrorPlain(FString ExpectedString, EAutomationExpectedErrorFlags::MatchType CompareType = EAutomationExpectedErrorFlags::Contains, int32 Occurrences = 1);

	/** By default none is suppressed, and warnings stay warnings. */
	virtual bool SuppressLogErrors() { return bSuppressLogErrors; }
	virtual bool SuppressLogWarnings() { return bSuppressLogWarnings; }
	virtual bool ElevateLogWarningsToErrors() { return bElevateLogWarningsToErrors; }

	/** Of all tests: who sets one sets it back. */
	static bool bSuppressLogErrors;
	static bool bSuppressLogWarnings;
	static bool bElevateLogWarningsToErrors;

	bool TestEqual(const TCHAR* What, int32 Actual, int32 Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, int64 Actual, int64 Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, float Actual, float Expected, float Tolerance = KINDA_SMALL_NUMBER, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, double Actual, double Expected, double Tolerance = KINDA_SMALL_NUMBER, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, FVector Actual, FVector Expected, float Tolerance = KINDA_SMALL_NUMBER, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, FColor Actual, FColor Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, FLinearColor Actual, FLinearColor Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestEqual(const TCHAR* What, FStringView Actual, FStringView Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestEqualSensitive(const TCHAR* What, const TCHAR* Actual, const TCHAR* Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestEqualSensitive(const TCHAR* What, FStringView Actual, FStringView Expected, FSourceLocation Place = FSourceLocation::current());
	bool TestTrue(const TCHAR* What, bool bValue, FSourceLocation Place = FSourceLocation::current());
	bool TestFalse(const TCHAR* What, bool bValue, FSourceLocation Place = FSourceLocation::current());
	bool TestNull(const TCHAR* What, const void* Pointer, FSourceLocation Place = FSourceLocation::current());

	template<typename ValueType>
	bool TestEqual(const TCHAR* What, const ValueType& Actual, const ValueType& Expected, FSourceLocation Place = FSourceLocation::current())
	{
		return Check(Actual == Expected, What, TEXT("The two values are not equal."), Place);
	}

	template<typename ValueType>
	bool TestNotNull(const TCHAR* What, const ValueType* Pointer, FSourceLocation Place = FSourceLocation::current())
	{
		return Check(Pointer != nullptr, What, TEXT("The pointer is null."), Place);
	}

	/** For what has IsValid(): smart and weak pointers, handles. */
	template<typename ValueType>
	bool TestValid(const TCHAR* What, const ValueType& Value, FSourceLocation Place = FSourceLocation::current())
	{
		return Check(Value.IsValid(), What, TEXT("The value is not valid (.IsValid() returned false)."), Place);
	}

	template<typename ValueType>
	bool TestInvalid(const TCHAR* What, const ValueType& Value, FSourceLocation Place = FSourceLocation::current())
	{
		return Check(!Value.IsValid(), What, TEXT("The value is valid (.IsValid() returned true)."), Place);
	}

	template<typename ValueType>
	bool TestSamePtr(const TCHAR* What, const ValueType* Actual, const ValueType* Expected, FSourceLocation Place = FSourceLocation::current())
	{
		return Check(Actual == Expected, What, TEXT("The two pointers differ."), Place);
	}

protected:
	/** Parallel arrays: how each case is shown, dots making a tree, and the parameter it is run with. */
	virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const = 0;
	virtual bool RunTest(const FString& Parameters) = 0;

private:
	friend FAutomationLog;
	friend FAutomationTestFramework;

	struct FExpectedMessage
	{
		FString Text;
		EAutomationExpectedMessageFlags::MatchType CompareType;
		int32 Occurrences;
		int32 NumSeen = 0;
	};

	void Begin();
	/** After the last latent command: what did not come as expected, and the verdict. */
	void Finish(FAutomationTestExecutionInfo& OutInfo);
	void AddLogLine(ELogVerbosity::Type Verbosity, const FString& Line);
	bool IsExpected(const FString& Line);
	void Add(EAutomationEventType Type, const FString& Message, const FSourceLocation& Place);
	bool Check(bool bHolds, const TCHAR* What, const TCHAR* Otherwise, const FSourceLocation& Place);
	bool CheckEqual(bool bEqual, const TCHAR* What, const FString& Actual, const FString& Expected, const FSourceLocation& Place);

	FString TestName;
	TArray<FExpectedMessage> ExpectedMessages;
	FAutomationTestExecutionInfo ExecutionInfo;
	bool bReturned = true; // what RunTest returned
};

/** A case of a test. */
class FAutomationTestInfo
{
public:
	FAutomationTestInfo(const FString&, const FString& InFullTestPath, const FString& InTestName, const FString& InSourceFile, int32 InSourceFileLine)
		: FullTestPath(InFullTestPath)
		, TestName(InTestName)
		, SourceFile(InSourceFile)
		, SourceFileLine(InSourceFileLine)
	{
	}

	const FString& GetFullTestPath() const { return FullTestPath; }
	/** What FAutomationTestFramework::StartTestByName takes. */
	const FString& GetTestName() const { return TestName; }
	const FString& GetSourceFile() const { return SourceFile; }
	int32 GetSourceFileLine() const { return SourceFileLine; }

private:
	FString FullTestPath;
	FString TestName;
	FString SourceFile;
	int32 SourceFileLine;
};

/** Knows all tests, and runs them one at a time. */
class FAutomationTestFramework
{
public:
	static FAutomationTestFramework& Get();

	/** Called by the tests themselves. */
	bool RegisterAutomationTest(const FString& InTestNameToRegister, FAutomationTestBase* InTestToRegister);
	bool UnregisterAutomationTest(const FString& InTestNameToUnregister);

	/** Smoke tests only, until more is asked for. */
	void SetRequestedTestFilter(const EAutomationTestFlags InRequestedTestFlags);

	/** Those of the requested kind that can run in this editor, by path. */
	void GetValidTestNames(TArray<FAutomationTestInfo>& TestInfo) const;

	/** Runs the test but for its latent commands. An unknown name is logged, and nothing starts. */
	void StartTestByName(const FString& InTestToRun, const int32 InRoleIndex, const FString& InFullTestPath = FString());

	/** To be called once a frame. True when none is left: the test may be stopped. */
	bool ExecuteLatentCommands();
	void EnqueueLatentCommand(TSharedPtr<IAutomationLatentCommand> NewCommand);

	/** Forgets those that wait. */
	void DequeueAllCommands() { LatentCommands.Empty(); }

	/** Fatal while latent commands wait. True when the test was successful. */
	bool StopTest(FAutomationTestExecutionInfo& OutExecutionInfo);

	/** Null while none runs. */
	FAutomationTestBase* GetCurrentTest() const { return CurrentTest; }

private:
	FAutomationTestFramework();
	~FAutomationTestFramework();
	bool CanRun(const FAutomationTestBase& Test) const;

	TArray<FAutomationTestBase*> Tests; // in order of registration
	TArray<TSharedPtr<IAutomationLatentCommand>> LatentCommands;
	TUniquePtr<FAutomationLog> Log; // while a test runs
	FAutomationTestBase* CurrentTest = nullptr;
	EAutomationTestFlags RequestedTestFilter = EAutomationTestFlags::SmokeFilter;
	double StartSeconds = 0.0;
};

namespace UE::Core::Private
{
	constexpr bool HasOneTestFilter(EAutomationTestFlags Flags)
	{
		const uint32 Filter = static_cast<uint32>(Flags & EAutomationTestFlags_FilterMask);
		return Filter != 0 && (Filter & (Filter - 1)) == 0;
	}
}

#define UE_PRIVATE_DECLARE_AUTOMATION_TEST(TClass, TBaseClass, bComplex, PrettyName, TFlags) \
	class TClass : public TBaseClass \
	{ \
	public: \
		explicit TClass(const FString& InName) \
			: TBaseClass(InName, bComplex) \
		{ \
			static_assert(!!((TFlags)&EAutomationTestFlags_ApplicationContextMask), "AutomationTest has no application flag. It should not be possible to run it."); \
			static_assert(::UE::Core::Private::HasOneTestFilter(TFlags), "All AutomationTests must have exactly 1 filter type specified."); \
		} \
		virtual EAutomationTestFlags GetTestFlags() const override { return (TFlags); } \
		virtual FString GetTestSourceFileName() const override { return __FILE__; } \
		virtual int32 GetTestSourceFileLine() const override { return __LINE__; } \
\
	protected: \
		virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override; \
		virtual bool RunTest(const FString& Parameters) override; \
	}; \
	namespace \
	{ \
		TClass TClass##AutomationTestInstance(TEXT(#TClass)); \
	}

#define UE_PRIVATE_DEFINE_SIMPLE_GET_TESTS(TClass, PrettyName) \
	void TClass::GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const \
	{ \
		OutBeautifiedNames.Add(PrettyName); \
		OutTestCommands.Add(FString()); \
	}

/** Declares a test; its bool TClass::RunTest(const FString& Parameters) follows. PrettyName is a literal with a dot after each group. */
#define IMPLEMENT_SIMPLE_AUTOMATION_TEST(TClass, PrettyName, TFlags) IMPLEMENT_CUSTOM_SIMPLE_AUTOMATION_TEST(TClass, FAutomationTestBase, PrettyName, TFlags)

#define IMPLEMENT_CUSTOM_SIMPLE_AUTOMATION_TEST(TClass, TBaseClass, PrettyName, TFlags) \
	UE_PRIVATE_DECLARE_AUTOMATION_TEST(TClass, TBaseClass, false, PrettyName, TFlags) \
	UE_PRIVATE_DEFINE_SIMPLE_GET_TESTS(TClass, PrettyName)

/** From within a test: a further step, when those before it are done. */
#define ADD_LATENT_AUTOMATION_COMMAND(ClassDeclaration) FAutomationTestFramework::Get().EnqueueLatentCommand(MakeShareable(new ClassDeclaration));
