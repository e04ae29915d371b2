// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Window/DockView.h"

#include "AssetRegistry/AssetData.h"
#include "Docks/Variants/VariantComparison.h"

class IWindowServices;

/**
 * The variant sets and variants of an asset beside the configurator that it was made from.
 * Shows what is selected in the content browser when that is one of the two, and stays with it otherwise.
 */
class FVariantManagerDock : public FDockView
{
public:
	FVariantManagerDock(IWindowServices& InServices, QWidget* Parent);

	//~ Begin FDockView
	virtual void Refresh() override;
	virtual void LetGo() override;
	//~ End FDockView

private:
	QWidget* MakeHead();
	QWidget* MakeFilters();
	void MakeTree();

	/** Which assets there are to choose from, by package name. */
	void FindAssets();
	void FollowSelection();
	/** Those of both sides that are chosen, loaded. */
	VariantComparison::FSides FindSides() const;
	void Pair();
	void Choose(const QString& InSets, const QString& InConfigurator);
	void FitHead(const VariantComparison::FSides& Sides);
	void FitTree(const std::vector<FVariantRow>& Rows);
	void FitSummary(const std::vector<FVariantRow>& Rows);
	void Filter();
	QString DescribeEmptiness(const VariantComparison::FSides& Sides) const;
	void OpenConfiguratorMenu();

	IWindowServices& Services;
	QComboBox* Assets = nullptr;
	QLabel* Configurator = nullptr;
	QPushButton* Act = nullptr;
	QMenu* ActMenu = nullptr;
	QLineEdit* Search = nullptr;
	QCheckBox* Differences = nullptr;
	QLabel* Summary = nullptr;
	QLabel* Empty = nullptr;
	QTreeWidget* Tree = nullptr;

	QString SetsName; // packages; empty for none
	QString ConfiguratorName;
	QStringList AllSets;
	QStringList AllConfigurators;
	TArray<FAssetData> Selection; // of the content browser, as it was last seen
	uint64 SeenAssets = 0;
	TOptional<uint32> SeenSides;
};
