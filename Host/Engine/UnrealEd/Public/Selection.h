// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Selection.generated.h"

/**
 * What is selected in the editor, in order of selection. Does not keep it alive: what was destroyed is no longer selected.
 * A step of undo that is open records changes of the selection; without one they cannot be undone.
 */
UCLASS()
class UNREALED_API USelection : public UObject
{
	GENERATED_BODY()

public:
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnSelectionChanged, UObject*);

	/** Whenever the editor notes a change of selection; told the selection object. Cleared when the editor goes down. */
	static FOnSelectionChanged SelectionChangedEvent;

	int32 Num() const;

	/** Null when there is no such index. */
	UObject* GetSelectedObject(int32 InIndex) const;

	/** The first selected object of the class; null when there is none. */
	template<class T>
	T* GetTop() const
	{
		for (const TWeakObjectPtr<UObject>& Object : Objects)
		{
			if (T* Typed = Cast<T>(Object.Get()))
			{
				return Typed;
			}
		}
		return nullptr;
	}

	bool IsSelected(const UObject* InObject) const;

	/** Selecting twice changes nothing; a null object is ignored. */
	void Select(UObject* InObject);
	void Deselect(UObject* InObject);
	void DeselectAll();

	/** Announces a change made through Select() and its like. */
	void NoteSelectionChanged();

	//~ Begin UObject
	virtual bool Modify(bool bAlwaysMarkDirty = true) override;
	virtual void PreEditUndo() override;
	virtual void PostEditUndo() override;
	//~ End UObject

private:
	void ForgetDestroyed() const;
	static void MarkSelected(UObject* Object, bool bSelected);

	UPROPERTY(Transient)
	mutable TArray<TWeakObjectPtr<UObject>> Objects;
};
