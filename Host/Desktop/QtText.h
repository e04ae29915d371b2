// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "QtHeaders.h"

#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"
#include "UObject/NameTypes.h"

/** Texts of the editor as Qt has them, and back. Both are UTF-16. */
namespace QtText
{
	inline QString From(const FString& Text)
	{
		return QString::fromUtf16(*Text, Text.Len());
	}
	inline QString From(const FText& Text)
	{
		return From(Text.ToString());
	}
	inline QString From(const FName& Name)
	{
		return Name.IsNone() ? QString() : From(Name.ToString());
	}

	inline FString ToEditor(const QString& Text)
	{
		return FString(static_cast<int32>(Text.size()), reinterpret_cast<const TCHAR*>(Text.utf16()));
	}

	/** A name such as "VelmorantDeveloperPanel" as people write it. */
	inline QString MakeTitle(const QString& Label)
	{
		QString Title;
		for (qsizetype Index = 0; Index < Label.size(); ++Index)
		{
			const QChar Character = Label[Index];
			if (Character == QLatin1Char('_'))
			{
				Title += QLatin1Char(' ');
				continue;
			}
			const bool bBeforeLower = Index + 1 < Label.size() && Label[Index + 1].isLower();
			const bool bWord = Character.isUpper() && !Title.isEmpty() && (Title.back().isLower() || (Title.back().isUpper() && bBeforeLower));
			Title += bWord ? QStringLiteral(" ") + Character : QString(Character);
		}
		return Title;
	}
}
