// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Look/Brushes.h"
#include "Session/DesktopEditor.h"
#include "Session/OutsideChanges.h"
#include "Window/DockTabs.h"
#include "Window/FixedDocks.h"
#include "Window/PanelDocks.h"
#include "Window/Toasts.h"
#include "Window/WindowServices.h"

#include <vector>

class FEditorMenus;
class FNoticeBar;
class FStatusLine;

/** The editor's window: menus, the toolbar, docks, notifications and the status line, brought up to date once a frame. */
class FMainWindow : public QMainWindow, public IWindowServices
{
public:
	/** @param InEditor outlives the window; nothing of it shows before it runs */
	explicit FMainWindow(FDesktopEditor& InEditor);
	virtual ~FMainWindow() override;

	/** Lets time pass, and shows what came of it. The timer calls it; so do those who cannot wait. */
	void Frame();

	/** Shows everything as it is, also while the editor is in the middle of something, such as between two steps of a script. */
	void ShowNow();

	/** Lets so much time pass, whatever the clock says, and shows what came of it. */
	void Let(double Seconds);

	/** A script plays: lists have at least the rows that they have without a window, and nothing fades, since nobody waits for it. */
	void SetPlaying(int InLeastRows);

	/** See FPanelDocks::FindContent(). */
	QWidget* FindPanelContent(const FString& Name) { return Panels.FindContent(Name); }

	/** Shows what to try first, unless that was closed once. */
	void Welcome();

	/** From now on, frames come by themselves. */
	void StartClock();

	//~ Begin IWindowServices
	virtual FHostInputResult Give(const TSharedRef<SWidget>& Widget, const FHostInput& Input) override;
	virtual void RequestFrame() override;
	virtual FBrushes& GetBrushes() override { return Brushes; }
	virtual int GetLeastRows() const override { return LeastRows; }
	virtual QObject& GetContext() override { return *this; }
	virtual void AddRoot(FWidgetRoot& Root) override;
	virtual void RemoveRoot(FWidgetRoot& Root) override;
	virtual FDesktopEditor& GetEditor() override { return Editor; }
	virtual void ShowDock(const QString& Name) override;
	virtual void Inspect(const TArray<UObject*>& Objects) override;
	virtual void Tell(const QString& Text) override;
	virtual void GoToNotification() override;
	virtual void Restart(const QString& Without) override;
	virtual void LookOutside() override;
	//~ End IWindowServices

protected:
	virtual void closeEvent(QCloseEvent* Event) override;
	virtual void resizeEvent(QResizeEvent* Event) override;
	virtual void showEvent(QShowEvent* Event) override;

private:
	void MakeToolbar();
	void MakeDocks();
	void Refresh();
	void RefreshAll();
	TSharedPtr<SWidget> FindToolbar();
	TOptional<FHostAnswer> Ask(const FHostQuestion& Question);
	void ShowWhatWasMade();
	void LetGo();
	void TellLost(const TArray<FString>& Lost);
	void TellBroken(const FString& Reason);
	void RestoreArrangement();
	void KeepArrangement() const;
	QString GetSettingsFile() const;

	FDesktopEditor& Editor;
	FBrushes Brushes;
	std::vector<FWidgetRoot*> Roots;
	FFixedDocks Docks;
	FPanelDocks Panels;
	FDockTabs Tabs;
	FToasts Toasts;
	FStatusLine* Status;
	FEditorMenus* Menus;
	FNoticeBar* Notice;
	FOutsideChanges Outside;
	QElapsedTimer SinceOutside;
	QTimer Timer;
	QElapsedTimer SinceToolbar;
	TSharedPtr<SWidget> Toolbar; // as it was made last; let go of with the editor
	int LeastRows = 0;
	int32 NumShown = 0; // calls that showed assets in the content browser
	bool bArranged = false; // as somebody left it, or once at first
	bool bLossAgreed = false; // somebody was asked about what the restart will lose
	bool bFrameRequested = false;
	bool bRefreshing = false;
};
