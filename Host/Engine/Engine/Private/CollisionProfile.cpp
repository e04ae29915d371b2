// Copyright Velmorant. All Rights Reserved.

#include "Engine/CollisionProfile.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogCollisionProfile, Log, All);

namespace CollisionProfile
{
	constexpr int32 NumChannels = 32;

	/** What a redirect makes of Name; a name without one stays. Redirects may follow one another. */
	FName Redirect(const TArray<FRedirector>& Redirects, FName Name)
	{
		// A circle of redirects ends after as many steps as there are redirects.
		for (int32 Step = 0; Step < Redirects.Num(); ++Step)
		{
			const FRedirector* Found = Redirects.FindByPredicate([Name](const FRedirector& Entry) { return Entry.OldName == Name; });
			if (Found == nullptr)
			{
				break;
			}
			Name = Found->NewName;
		}
		return Name;
	}

	/** "WorldStatic" for ECC_WorldStatic. */
	FName StockChannelName(int32 Channel)
	{
		FString Name = StaticEnum<ECollisionChannel>()->GetNameStringByValue(Channel);
		Name.RemoveFromStart(TEXT("ECC_"), ESearchCase::CaseSensitive);
		return FName(Name);
	}
}

UCollisionProfile* UCollisionProfile::Get()
{
	UCollisionProfile* Profile = GetMutableDefault<UCollisionProfile>();
	Profile->LoadProfileConfig();
	return Profile;
}

void UCollisionProfile::LoadProfileConfig(bool bForceInit)
{
	if (bLoaded && !bForceInit)
	{
		return;
	}
	if (bForceInit)
	{
		LoadConfig();
	}
	LoadChannels();
	LoadProfiles();
	bLoaded = true;
}

void UCollisionProfile::LoadChannels()
{
	ChannelNames.Reset();
	for (int32 Channel = 0; Channel < CollisionProfile::NumChannels; ++Channel)
	{
		ChannelNames.Add(CollisionProfile::StockChannelName(Channel));
	}
	DefaultResponses.SetAllChannels(ECR_Block);
	for (const FCustomChannelSetup& Setup : DefaultChannelResponses)
	{
		const ECollisionChannel Channel = Setup.Channel;
		if (ChannelNames.IsValidIndex(Channel))
		{
			ChannelNames[Channel] = Setup.Name;
			DefaultResponses.SetResponse(Channel, Setup.DefaultResponse);
		}
	}
}

void UCollisionProfile::LoadProfiles()
{
	LoadedProfiles.Reset();
	ProfileIndices.Reset();
	for (const FCollisionResponseTemplate& Profile : Profiles)
	{
		// A later line of the same name replaces an earlier one, as everywhere in config files.
		if (const int32* Index = ProfileIndices.Find(Profile.Name))
		{
			LoadedProfiles[*Index] = Profile;
		}
		else
		{
			ProfileIndices.Add(Profile.Name, LoadedProfiles.Add(Profile));
		}
	}
	for (const FCustomProfile& Edit : EditProfiles)
	{
		if (const int32* Index = ProfileIndices.Find(CollisionProfile::Redirect(ProfileRedirects, Edit.Name)))
		{
			LoadedProfiles[*Index].CustomResponses.Append(Edit.CustomResponses);
		}
	}
	for (FCollisionResponseTemplate& Profile : LoadedProfiles)
	{
		ResolveProfile(Profile);
	}
}

void UCollisionProfile::ResolveProfile(FCollisionResponseTemplate& Profile) const
{
	Profile.ResponseToChannels = DefaultResponses;
	if (!Profile.ObjectTypeName.IsNone())
	{
		const int32 ObjectType = FindChannel(Profile.ObjectTypeName);
		if (ObjectType != INDEX_NONE)
		{
			Profile.ObjectType = ECollisionChannel(ObjectType);
		}
	}
	for (const FResponseChannel& Custom : Profile.CustomResponses)
	{
		const int32 Channel = FindChannel(Custom.Channel);
		if (Channel == INDEX_NONE)
		{
			UE_LOG(LogCollisionProfile, Warning, TEXT("Profile %s answers to the channel %s, which does not exist."),
				*Profile.Name.ToString(), *Custom.Channel.ToString());
			continue;
		}
		Profile.ResponseToChannels.SetResponse(ECollisionChannel(Channel), Custom.Response);
	}
}

int32 UCollisionProfile::FindChannel(FName ChannelName) const
{
	const int32 Found = ChannelNames.Find(ChannelName);
	return Found != INDEX_NONE ? Found : ChannelNames.Find(CollisionProfile::Redirect(CollisionChannelRedirects, ChannelName));
}

bool UCollisionProfile::GetProfileTemplate(FName ProfileName, FCollisionResponseTemplate& ProfileData) const
{
	const int32* Index = ProfileIndices.Find(ProfileName);
	if (Index == nullptr)
	{
		Index = ProfileIndices.Find(CollisionProfile::Redirect(ProfileRedirects, ProfileName));
	}
	if (Index == nullptr)
	{
		return false;
	}
	ProfileData = LoadedProfiles[*Index];
	return true;
}

const FCollisionResponseTemplate* UCollisionProfile::GetProfileByIndex(int32 Index) const
{
	return LoadedProfiles.IsValidIndex(Index) ? &LoadedProfiles[Index] : nullptr;
}
