// Copyright Velmorant. All Rights Reserved.

#include "Misc/MessageDialog.h"

#include "HostQuestions.h"
#include "Internationalization/Internationalization.h"
#include "Logging/LogMacros.h"

#define LOCTEXT_NAMESPACE "MessageDialog"

DEFINE_LOG_CATEGORY_STATIC(LogMessageDialog, Log, All);

namespace MessageDialog
{
	/** The buttons of one type of dialog, as they stand side by side. */
	struct FButtons
	{
		EAppReturnType::Type DefaultValue;
		TArray<EAppReturnType::Type> Values;
	};

	FButtons ButtonsOf(EAppMsgType::Type MessageType)
	{
		using namespace EAppReturnType;
		switch (MessageType)
		{
			case EAppMsgType::Ok:
				return {Ok, {Ok}};
			case EAppMsgType::YesNo:
				return {No, {Yes, No}};
			case EAppMsgType::OkCancel:
				return {Cancel, {Ok, Cancel}};
			case EAppMsgType::YesNoCancel:
				return {Cancel, {Yes, No, Cancel}};
			case EAppMsgType::CancelRetryContinue:
				return {Cancel, {Cancel, Retry, Continue}};
			case EAppMsgType::YesNoYesAllNoAll:
				return {No, {Yes, No, YesAll, NoAll}};
			case EAppMsgType::YesNoYesAllNoAllCancel:
				return {Cancel, {Yes, No, YesAll, NoAll, Cancel}};
			case EAppMsgType::YesNoYesAll:
				return {No, {Yes, No, YesAll}};
		}
		checkNoEntry();
	}

	FText TitleOf(EAppMsgCategory Category)
	{
		switch (Category)
		{
			case EAppMsgCategory::Warning:
				return LOCTEXT("WarningTitle", "Warning");
			case EAppMsgCategory::Error:
				return LOCTEXT("ErrorTitle", "Error");
			case EAppMsgCategory::Success:
				return LOCTEXT("SuccessTitle", "Success");
			case EAppMsgCategory::Info:
				break;
		}
		return LOCTEXT("MessageTitle", "Message");
	}

	FString NameOf(EAppMsgCategory Category)
	{
		switch (Category)
		{
			case EAppMsgCategory::Warning:
				return TEXT("Warning");
			case EAppMsgCategory::Error:
				return TEXT("Error");
			case EAppMsgCategory::Success:
				return TEXT("Success");
			case EAppMsgCategory::Info:
				break;
		}
		return TEXT("Info");
	}

	EAppReturnType::Type Ask(EAppMsgCategory Category, const FButtons& Buttons, EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title)
	{
		FHostQuestion Question;
		Question.Kind = FName(TEXT("Message"));
		Question.Title = Title;
		Question.Message = Message;
		for (const EAppReturnType::Type Value : Buttons.Values)
		{
			Question.Choices.Add(LexToString(Value));
		}
		Question.DefaultChoice = LexToString(DefaultValue);
		Question.Fields.Add(TEXT("Category"), NameOf(Category));

		const FHostAnswer Answer = HostQuestions::Ask(Question);
		UE_LOG(LogMessageDialog, Log, TEXT("Message dialog closed, result: %s, title: %s, text: %s"), *Answer.Choice, *Title.ToString(), *Message.ToString());
		const EAppReturnType::Type* const Chosen = Buttons.Values.FindByPredicate([&Answer](EAppReturnType::Type Value) { return Answer.Choice == LexToString(Value); });
		return Chosen ? *Chosen : DefaultValue;
	}
}

const TCHAR* LexToString(EAppReturnType::Type Value)
{
	static const TCHAR* const Names[] = {TEXT("No"), TEXT("Yes"), TEXT("YesAll"), TEXT("NoAll"), TEXT("Cancel"), TEXT("Ok"), TEXT("Retry"), TEXT("Continue")};
	return Names[Value];
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, const FText& Message)
{
	return Open(MessageType, Message, MessageDialog::TitleOf(EAppMsgCategory::Info));
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, const FText& Message, const FText& Title)
{
	return Open(EAppMsgCategory::Warning, MessageType, Message, Title);
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message)
{
	return Open(MessageCategory, MessageType, Message, MessageDialog::TitleOf(MessageCategory));
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, const FText& Message, const FText& Title)
{
	return Open(MessageCategory, MessageType, MessageDialog::ButtonsOf(MessageType).DefaultValue, Message, Title);
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message)
{
	return Open(MessageType, DefaultValue, Message, MessageDialog::TitleOf(EAppMsgCategory::Info));
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title)
{
	return Open(EAppMsgCategory::Warning, MessageType, DefaultValue, Message, Title);
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message)
{
	return Open(MessageCategory, MessageType, DefaultValue, Message, MessageDialog::TitleOf(MessageCategory));
}

EAppReturnType::Type FMessageDialog::Open(EAppMsgCategory MessageCategory, EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText& Title)
{
	return MessageDialog::Ask(MessageCategory, MessageDialog::ButtonsOf(MessageType), DefaultValue, Message, Title);
}

#undef LOCTEXT_NAMESPACE
