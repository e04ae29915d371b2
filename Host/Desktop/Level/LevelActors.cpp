// Copyright Velmorant. All Rights Reserved.

#include "Level/LevelActors.h"

#include "Editor.h"
#include "EngineUtils.h"
#include "HostActors.h"
#include "HostStyles.h"
#include "QtText.h"
#include "UnitVolumeActor.h"

namespace LevelActors
{
	static const int32 MostWithoutRest = 2000; // actors; a busy machine must not make small levels lag behind
	static const int RestPerLook = 20; // so many times as long as a look takes, the next one waits

	class FStamp
	{
	public:
		template<typename ValueType>
		void Add(const ValueType& Value)
		{
			AddBytes(&Value, sizeof(Value));
		}
		void Add(const FString& Text) { AddBytes(*Text, sizeof(TCHAR) * static_cast<std::size_t>(Text.Len())); }
		quint64 Get() const { return Hash; }

	private:
		void AddBytes(const void* Bytes, std::size_t Count) { Hash = static_cast<quint64>(qHashBits(Bytes, Count, static_cast<std::size_t>(Hash))); }

		quint64 Hash = 0;
	};

	void Add(FStamp& Stamp, const FVector& Vector)
	{
		Stamp.Add(Vector.X);
		Stamp.Add(Vector.Y);
		Stamp.Add(Vector.Z);
	}

	quint64 ReadStamp()
	{
		FStamp Stamp;
		Stamp.Add(GetWorld());
		for (const AActor* const Actor : GetAll())
		{
			Stamp.Add(Actor);
			Stamp.Add(Actor->GetActorLabel());
			Add(Stamp, Actor->GetActorLocation());
			Add(Stamp, Actor->GetActorScale3D());
			Stamp.Add(Actor->GetActorRotation().Yaw);
			Stamp.Add(Actor->IsSelected());
			if (const AUnitVolumeActor* const Volume = Cast<AUnitVolumeActor>(Actor))
			{
				Stamp.Add(Volume->UniqueIdentifier.UnitID);
				Stamp.Add(Volume->UniqueIdentifier.Keycode);
				Add(Stamp, Volume->BoxExtent);
			}
		}
		return Stamp.Get();
	}

	UWorld* GetWorld()
	{
		return GEditor != nullptr ? GEditor->GetEditorWorldContext().World() : nullptr;
	}

	TArray<AActor*> GetAll()
	{
		TArray<AActor*> Actors;
		if (UWorld* const World = GetWorld())
		{
			for (FActorIterator Each(World); Each; ++Each)
			{
				Actors.Add(*Each);
			}
		}
		return Actors;
	}

	TArray<AActor*> GetSelected()
	{
		return HostActors::GetSelected();
	}

	void Select(const TArray<AActor*>& Actors)
	{
		HostActors::Select(Actors);
	}

	void Rename(AActor& Actor, const QString& Label)
	{
		HostActors::Rename(Actor, QtText::ToEditor(Label));
	}

	void Delete(const TArray<AActor*>& Actors)
	{
		HostActors::Delete(Actors);
	}

	void LookAt(const TArray<AActor*>& Actors)
	{
		if (GEditor != nullptr)
		{
			GEditor->MoveViewportCamerasToActor(Actors, false);
		}
	}

	QString GetClassTitle(const UClass& Class)
	{
		const QString Title = QtText::From(Class.GetDisplayNameText());
		const bool bGenerated = Class.GetName().EndsWith(TEXT("_C")) && Title.endsWith(QLatin1String(" C")); // of an asset; people know it without that
		return bGenerated ? Title.chopped(2) : Title;
	}

	const FSlateBrush* FindClassIcon(const UClass& Class)
	{
		for (const UClass* Each = &Class; Each != nullptr; Each = Each->GetSuperClass())
		{
			if (const FSlateBrush* const Brush = HostStyles::FindBrush(FName(FString(TEXT("ClassIcon.")) + Each->GetName())))
			{
				return Brush;
			}
		}
		return nullptr;
	}
}

bool FLevelWatch::HasChanged()
{
	if (bLooked && SinceLook.nsecsElapsed() < CostOfLook * LevelActors::RestPerLook)
	{
		return false;
	}
	QElapsedTimer Clock;
	Clock.start();
	const quint64 Stamp = LevelActors::ReadStamp();
	const bool bChanged = !bLooked || Stamp != LastStamp;
	LastStamp = Stamp;
	bLooked = true;
	const bool bLarge = LevelActors::GetAll().Num() > LevelActors::MostWithoutRest;
	CostOfLook = bLarge ? Clock.nsecsElapsed() : 0;
	SinceLook.start();
	return bChanged;
}
