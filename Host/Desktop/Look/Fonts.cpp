// Copyright Velmorant. All Rights Reserved.

#include "Look/Fonts.h"

#include "Engine/Font.h"
#include "Misc/Paths.h"
#include "QtText.h"

#include <algorithm>
#include <cmath>

namespace Fonts
{
	static const int StandardPixels = 13;

	int ToPixels(float Points)
	{
		return std::max(1, static_cast<int>(std::lround(Points * 96.0f / 72.0f)));
	}

	/** Read once; empty when there is no such file, or no font in it. */
	QString FindFamilyInFile(const QString& File)
	{
		static QHash<QString, QString> Known;
		const auto Found = Known.constFind(File);
		if (Found != Known.constEnd())
		{
			return *Found;
		}
		const int Id = QFontDatabase::addApplicationFont(File);
		const QStringList Families = Id >= 0 ? QFontDatabase::applicationFontFamilies(Id) : QStringList();
		return *Known.insert(File, Families.value(0));
	}

	/** Of the face's file, where the font has one; empty otherwise. */
	QString FindFamily(const UObject* FontObject, FName Typeface)
	{
		const UFont* const Font = Cast<UFont>(FontObject);
		if (Font == nullptr)
		{
			return QString();
		}
		const TArray<FTypefaceEntry>& Faces = Font->CompositeFont.DefaultTypeface.Fonts;
		const FTypefaceEntry* const Named = Faces.FindByPredicate([Typeface](const FTypefaceEntry& Face) { return Face.Name == Typeface; });
		const FTypefaceEntry* const Face = Named != nullptr || Faces.IsEmpty() ? Named : &Faces[0];
		const FString File = Face != nullptr ? Face->Font.GetFontFilename() : FString();
		if (File.IsEmpty())
		{
			return QString();
		}
		return FindFamilyInFile(QtText::From(FPaths::IsRelative(File) ? FPaths::ProjectContentDir() + File : File));
	}

	QFont GetStandard()
	{
		QFont Font = QApplication::font();
		Font.setPixelSize(StandardPixels);
		return Font;
	}

	QFont ToQt(const FSlateFontInfo& Font)
	{
		QFont Result = GetStandard();
		if (Font.TypefaceFontName.IsNone() && !Font.HasValidFont())
		{
			return Result;
		}
		Result.setPixelSize(std::max(ToPixels(Font.Size), StandardPixels - 1)); // smaller ones are hard to read
		const QString Family = FindFamily(Font.FontObject, Font.TypefaceFontName);
		if (!Family.isEmpty())
		{
			Result.setFamily(Family);
			return Result;
		}
		Result.setBold(Font.TypefaceFontName == FName(TEXT("Bold")));
		return Result;
	}
}
