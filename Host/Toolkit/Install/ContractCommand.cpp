// Copyright Velmorant. All Rights Reserved.

#include "Install/ContractCommand.h"

#include "Contract/CompanionContract.h"
#include "Console.h"
#include "HostFiles.h"
#include "HostProblems.h"
#include "Install/ContractText.h"
#include "Refusal.h"
#include "Install/ToolkitData.h"

EExitStatus ContractCommand::Run(const FContractArguments& Arguments)
{
	for (const FString& Folder : Arguments.PluginFolders)
	{
		if (!HostFiles::DirectoryExists(Folder))
		{
			HostProblems::Report(HostFiles::Resolve(Folder), 0, TEXT("there is no such folder"), TEXT("Name the folders of plugins."));
			Refusal::PrintProblems(EExitStatus::Usage, false);
			return EExitStatus::Usage;
		}
	}
	const TOptional<FContractReport> Report = CompanionContract::Check({Arguments.PluginFolders, ToolkitData::GetModuleFolder(TEXT("VelmorantProEditor")), ToolkitData::GetCompanionTables(), ToolkitData::GetCompanionsFolder()});
	if (Report.IsSet())
	{
		ContractText::Print(*Report);
	}
	Console::PrintProblems(HostProblems::GetAll());
	if (!Report.IsSet() || !HostProblems::GetAll().IsEmpty())
	{
		return EExitStatus::Trouble;
	}
	return Report->IsSound() ? EExitStatus::Done : EExitStatus::Failed;
}
