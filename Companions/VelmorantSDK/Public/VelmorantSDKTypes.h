// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "VelmorantSDKTypes.generated.h"

/** What a finished or requested update is about. The editor tools pass these on by value. */
UENUM(BlueprintType)
enum class EUpdateRequestDataType : uint8
{
	None = 0,
	/** The list of the user's projects. */
	Projects = 1,
	/** One configurator: what a configurator wrapper is asked to fetch anew. */
	Configurator = 2,
	/** The units of one unit group. */
	Units = 3,
	/** Configurator data has arrived and stands in the wrappers. */
	ConfiguratorData = 4,
	/** The whole selected project has arrived and stands in the wrappers. */
	ProjectData = 5
};

/** How an update was asked for. */
UENUM(BlueprintType)
enum class EUpdateRequestType : uint8
{
	/** Fetch the current state from the service. */
	Get = 0,
	/** The service told of a change by itself. */
	Notified = 1
};

/** How large a picture is asked for. */
UENUM(BlueprintType)
enum class EImageRequestSize : uint8
{
	Thumbnail = 0,
	Medium = 1,
	Original = 2
};

/** One of the designer's projects on the service. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FProject
{
	GENERATED_BODY()

	/** Unique on the service; compared without regard to case. */
	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Project")
	FString KeyCode;

	/** What a packaged model identifies itself with; empty for a project that may not be published yet. */
	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Project")
	FString ApiKey;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Project")
	FString ProjectName;

	/** A project that came from the service has a key code; an empty record has none. */
	bool IsValidProject() const { return !KeyCode.IsEmpty(); }
};

/** A group of units: a tower, a phase, a promotion. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FUnitGroupData
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Units")
	FString KeyCode;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Units")
	FString Name;
};

/** One apartment or commercial unit. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FUnitData
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Units")
	FString KeyCode;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Units")
	FString Name;

	/** The service's number for the unit. */
	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|Units")
	int32 UnitID = 0;
};

/** A picture as the service sends it: encoded bytes, empty when there is none. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FImageObjectData
{
	GENERATED_BODY()

	/** A PNG or JPEG file's bytes. */
	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	TArray<uint8> Data;

	bool IsEmpty() const { return Data.IsEmpty(); }
};

/** What the service tells of a user who has signed in. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FLoginInfo
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	FString FirstName;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	FString LastName;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	FString Email;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	FImageObjectData Picture;
};

/** A login request, and what is remembered of one. Never printed: it holds a password. */
USTRUCT(BlueprintType)
struct VELMORANTSDK_API FVelmorantUserInformation
{
	GENERATED_BODY()

	FVelmorantUserInformation() = default;
	FVelmorantUserInformation(bool bInRememberMe, const FString& InUserName, const FString& InPassword);

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	bool bRememberMe = false;

	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	FString UserName;

	/** Not reflected, so that nothing that prints properties can print it. */
	FString Password;

	/** Whether the request comes from the editor rather than from a running model. */
	UPROPERTY(BlueprintReadOnly, Category = "Velmorant|User")
	bool bFromEditor = false;
};
