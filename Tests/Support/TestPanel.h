// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Blueprint/UserWidget.h"
#include "HostSnapshot.h"
#include "HostWidget.h"
#include "UObject/StrongObjectPtr.h"
#include "Widgets/SWidget.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

/** What a project selector tells its layout when it begins and ends to ask for the projects. */
namespace SelectorEvents
{
	inline const char* const Busy = "OnRequestingUserProjectsProcess(true)";
	inline const char* const Idle = "OnRequestingUserProjectsProcess(false)";
}

/** A person's hands and eyes on something that shows. The test fails when it does not let them. */
class FTestScreen
{
public:
	void Click(const TCHAR* Widget);
	void Type(const TCHAR* Widget, const TCHAR* Text);
	void Choose(const TCHAR* Widget, const TCHAR* Option);
	void Check(const TCHAR* Widget, bool bOn);

	/** What a person reads in a widget. */
	std::string Read(const TCHAR* Widget) const;
	std::vector<std::string> Options(const TCHAR* Widget) const;

	/** What they see of a widget: it may be hidden or disabled by what it stands in. */
	FHostWidgetDescription Look(const TCHAR* Widget) const;

	/** All that they see, a widget a line. */
	std::string Snapshot() const;

protected:
	TSharedPtr<SWidget> Screen;

private:
	void Expect(const FHostInputResult& Result) const;
};

/** A tab of the editor with a panel of the toolkit's own content. Closes with this object. */
class FTestTab : public FTestScreen
{
public:
	/** The test fails when there is no such asset, or its layout is not sound. */
	explicit FTestTab(const TCHAR* Asset);
	~FTestTab();
	FTestTab(FTestTab&& Other) = default;

private:
	FName Id;
};

/**
 * A panel of a layout of the test's own, on screen, with a person's hands on it.
 *
 * Its class is derived at run time, as a widget blueprint's is. The given Blueprint events are answered by recording them: "Name", or
 * "Name(true)" for one with a flag, a number, a text or an enumerator.
 */
class FTestPanel : public FTestScreen
{
public:
	/**
	 * The test fails when the layout does not fit its panel class. Nothing shows before Show().
	 * @param Outer of the panel, such as the world that it belongs to; null for none
	 */
	FTestPanel(const char* Layout, std::initializer_list<const TCHAR*> Events, UObject* Outer = nullptr);

	/** Makes the Slate widget, which constructs the panel. */
	void Show();

	/** Lets the Slate widget go, which destructs the panel; the object stays. */
	void Hide();

	template<typename PanelT>
	PanelT* Get() const
	{
		return CastChecked<PanelT>(Panel.Get());
	}

	UUserWidget* Get() const { return Panel.Get(); }

	template<typename WidgetT>
	WidgetT* Find(const TCHAR* Name) const
	{
		return CastChecked<WidgetT>(Panel->GetWidgetFromName(FName(Name)));
	}

	/** Events since the last call. */
	std::vector<std::string> TakeEvents();

	/** Records every call of a delegate of the panel, or of a widget of it, as "Name(true)", from its first parameter if that is a flag. */
	void ListenTo(const TCHAR* Delegate, const TCHAR* Widget = nullptr);

private:
	// Shared with the recording scripts, which may outlive this object.
	std::shared_ptr<std::vector<std::string>> Events = std::make_shared<std::vector<std::string>>();
	TStrongObjectPtr<UClass> Class;
	TStrongObjectPtr<UUserWidget> Panel;
};
