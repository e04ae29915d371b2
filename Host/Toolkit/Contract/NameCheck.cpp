// Copyright Velmorant. All Rights Reserved.

#include "Contract/NameCheck.h"

#include "TextTools.h"

#include <algorithm>

namespace NameCheck
{
	std::string Quote(const std::string& Text)
	{
		return "\"" + Text + "\"";
	}

	/** What the tables say of a declaration, part by part. */
	std::optional<FDeclaration> GetExpected(const HeaderTool::FHeader& Expected, const FExpectedName& Name)
	{
		std::optional<FDeclaration> Result = Declaration::Find(Expected, Name.Type, Name.Member);
		if (Result.has_value() && Name.Member.empty() && Name.Text.starts_with("struct "))
		{
			Result->Parts["kind"] = "struct";
		}
		return Result;
	}

	/** Parts that both have and that say something else. */
	std::vector<std::string> FindDifferences(const FDeclaration& Expected, const FDeclaration& Found)
	{
		std::vector<std::string> Parts;
		for (const auto& [Part, Value] : Expected.Parts)
		{
			const auto Other = Found.Parts.find(Part);
			if (Other != Found.Parts.end() && Other->second != Value)
			{
				Parts.push_back(Part);
			}
		}
		return Parts;
	}

	bool HasConstructor(const FDeclaredType& Type)
	{
		return std::any_of(Type.Members.begin(), Type.Members.end(), [&Type](const auto& Member) { return Member.first.starts_with(Type.Name + "/"); });
	}

	/** Under which name the member is among those of a declared type. */
	std::string GetLookupName(const FExpectedName& Name)
	{
		if (!Name.IsConstructor())
		{
			return Name.Member;
		}
		const std::string Parameters = Name.Text.substr(Name.Text.find('('));
		const size_t Commas = static_cast<size_t>(std::count(Parameters.begin(), Parameters.end(), ','));
		return FDeclaredType::ConstructorName(Name.Type, Parameters == "()" ? 0 : Commas + 1);
	}
}

FNameCheck::FNameCheck(const HeaderTool::FHeader& InExpected, const FTypeIndex& InCompanions, const FTypeIndex& InReference, FContractReport& InReport)
	: Expected(InExpected)
	, Companions(InCompanions)
	, Reference(InReference)
	, Out(InReport)
{
}

void FNameCheck::Check(const std::vector<FExpectedName>& Type)
{
	Out.NumCompared += static_cast<int32>(Type.size());
	const FTypePlace Place = Companions.Find(Type[0].Type, Type[0].Header);
	if (Place.Header == nullptr)
	{
		ReportTypeMissing(Type);
		return;
	}
	Headers.insert(Place.Header);
	CheckType(Type[0], Place);
	for (size_t Index = 1; Index < Type.size(); ++Index)
	{
		CheckMember(Type[Index], Place);
	}
}

void FNameCheck::CheckType(const FExpectedName& Name, const FTypePlace& Place)
{
	if (Place.Header->GetIncludePath() != Name.Header)
	{
		Out.Chosen.push_back({Place.Header->Path, Place.Type->Line, "module expects " + NameCheck::Quote(Name.Type) + " in " + Name.Header + ", found it here"});
	}
	Compare(Name, Place, Place.Type->Line);
}

void FNameCheck::CheckMember(const FExpectedName& Name, const FTypePlace& Type)
{
	const FTypePlace Owner = Companions.FindMember(Type, NameCheck::GetLookupName(Name));
	const bool bImplicit = Name.Text == Name.Type + "()" && !NameCheck::HasConstructor(*Type.Type); // the compiler makes that constructor
	if (Owner.Header != nullptr)
	{
		Headers.insert(Owner.Header);
		Compare(Name, Owner, Owner.Type->Members.at(NameCheck::GetLookupName(Name)));
	}
	else if (!bImplicit)
	{
		ReportMissing(Name, Type);
	}
}

void FNameCheck::Compare(const FExpectedName& Name, const FTypePlace& Owner, int Line)
{
	const std::optional<FDeclaration> Wanted = NameCheck::GetExpected(Expected, Name);
	const std::optional<FDeclaration> Found = Declaration::Find(Owner.Header->Model, Owner.Type->Name, Name.Member);
	CompareSpecifiers(Name, Owner, Line, Found);
	if (!Wanted.has_value() || !Found.has_value() || Name.IsConstructor())
	{
		return; // by its name alone, which is there
	}
	++Out.NumExact;
	std::vector<std::string> Parts = NameCheck::FindDifferences(*Wanted, *Found);
	const auto Base = Wanted->Parts.find("base class");
	if (Base != Wanted->Parts.end() && (Base->second.empty() || Companions.DerivesFrom(Owner, Base->second))) // a base more does no harm
	{
		std::erase(Parts, "base class");
	}
	if (!Parts.empty())
	{
		const bool bStops = Name.bGiven && std::any_of(Parts.begin(), Parts.end(), [&Name](const std::string& Part) { return Name.GivenParts.count(Part) > 0; });
		const bool bAccess = Parts == std::vector<std::string>{"access"};
		Report(bStops, Name, Owner.Header->Path, Line, NameCheck::Quote(Found->Text) + (bAccess ? ", which is " + Found->Parts.at("access") : ""));
	}
}

/** How a name is marked was chosen here for all of them. What a base class is marked with holds for those below it. */
void FNameCheck::CompareSpecifiers(const FExpectedName& Name, const FTypePlace& Owner, int Line, const std::optional<FDeclaration>& Found)
{
	if (!Found.has_value() && Owner.Header->Diagnostics.HasErrors())
	{
		return; // perhaps it is what could not be read
	}
	std::set<std::string> Missing = Name.Specifiers;
	for (const FTypePlace& Type : Name.Member.empty() ? Companions.GetChain(Owner) : std::vector<FTypePlace>{Owner})
	{
		const std::optional<FDeclaration> Each = Declaration::Find(Type.Header->Model, Type.Type->Name, Name.Member);
		std::erase_if(Missing, [&Each](const std::string& Specifier) { return Each.has_value() && Each->Specifiers.count(Specifier) > 0; });
	}
	if (!Missing.empty())
	{
		const std::string Text = Found.has_value() ? Found->Text : Owner.Header->GetDeclaration(Line);
		Report(false, Name, Owner.Header->Path, Line, NameCheck::Quote(Text) + ", which is not " + HeaderTool::Join({Missing.begin(), Missing.end()}, ", "));
	}
}

void FNameCheck::ReportTypeMissing(const std::vector<FExpectedName>& Type)
{
	const bool bStops = std::any_of(Type.begin(), Type.end(), [](const FExpectedName& Name) { return Name.bGiven; });
	Report(bStops, Type[0], Type[0].Header, 0, "no type of that name" + std::string(Type.size() > 1 ? "; its members were not looked for" : ""));
}

void FNameCheck::ReportMissing(const FExpectedName& Name, const FTypePlace& Type)
{
	const std::string Renamed = FindRenamed(Name, Type);
	const int Line = Renamed.empty() ? Type.Type->Line : Type.Type->Members.at(Renamed);
	const std::optional<FDeclaration> Found = Declaration::Find(Type.Header->Model, Type.Type->Name, Renamed);
	const std::string Text = Found.has_value() ? Found->Text : Type.Header->GetDeclaration(Line);
	Report(Name.bGiven, Name, Type.Header->Path, Line, Renamed.empty() ? "nothing of that name" : NameCheck::Quote(Text));
}

/** A member that the reference companion does not have: one whose name is alike, or the only one that is declared so. */
std::string FNameCheck::FindRenamed(const FExpectedName& Name, const FTypePlace& Type) const
{
	const FTypePlace Known = Reference.Find(Name.Type, Name.Header);
	std::vector<std::string> New;
	std::vector<std::string> DeclaredAlike;
	const std::optional<FDeclaration> Wanted = NameCheck::GetExpected(Expected, Name);
	for (const auto& [Member, Line] : Type.Type->Members)
	{
		const bool bNew = Known.Type != nullptr && Known.Type->Members.count(Member) == 0;
		const std::optional<FDeclaration> Found = bNew ? Declaration::Find(Type.Header->Model, Type.Type->Name, Member) : std::nullopt;
		if (Wanted.has_value() && Found.has_value() && Found->Parts.size() == Wanted->Parts.size() && NameCheck::FindDifferences(*Wanted, *Found).empty())
		{
			DeclaredAlike.push_back(Member);
		}
		if (bNew)
		{
			New.push_back(Member);
		}
	}
	const std::string Nearest = HeaderTool::FindNearest(Name.Member, New);
	return Nearest.empty() && DeclaredAlike.size() == 1 ? DeclaredAlike[0] : Nearest;
}

void FNameCheck::Report(bool bStops, const FExpectedName& Name, const std::string& Path, int Line, const std::string& Found)
{
	const std::string Where = Name.Member.empty() ? Name.Header : Name.Type + " (" + Name.Header + ")";
	(bStops ? Out.Given : Out.Chosen).push_back({Path, Line, "module expects " + NameCheck::Quote(Name.Text) + " in " + Where + ", found " + Found});
}
