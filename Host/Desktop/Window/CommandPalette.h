// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include <functional>
#include <vector>

class IWindowServices;

/** Everything that can be done, opened or shown, by name: what menus hold, the toolkit's own included, panels, and assets. */
class FCommandPalette : public QDialog
{
public:
	FCommandPalette(IWindowServices& InServices, QMainWindow& InWindow);

	struct FCommand
	{
		QString Name;
		QString Place; // where else it is found: "File", "Asset"
		std::function<void()> Do;
	};

protected:
	virtual bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
	void CollectMenu(const QMenu& Menu, const QString& Place);
	void CollectToolbar();
	void CollectAssets();
	void Search(const QString& Text);
	void DoCurrent();

	IWindowServices& Services;
	QMainWindow& Window;
	std::vector<FCommand> Commands;
	std::vector<std::size_t> Shown; // by row
	QLineEdit* Field;
	QListWidget* List;
};
