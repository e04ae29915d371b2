// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Install/JsonInsert.h"

/** An entry that one of a descriptor's lists has to have. */
struct FDescriptorEntry
{
	std::string List; // "Modules" or "Plugins"
	std::string Name;
	std::vector<FJsonMemberText> Members; // besides the name; of an entry that is there those that are written must say this
	std::vector<std::string> Optional; // names of members that may be missing in an entry that is there: the engine's default is this
};

/** A descriptor (.uplugin) while it is being changed. Its text is UTF-8; what is not concerned stays as it is, comments and blanks included. */
class FDescriptorEdit
{
public:
	explicit FDescriptorEdit(std::string InText);

	/** False when it is none; the reason can be asked for. */
	bool IsReadable() const { return bReadable; }
	const std::string& GetReason() const { return Reason; }
	int GetReasonLine() const { return ReasonLine; }

	const std::string& GetText() const { return Text; }
	const std::vector<std::string>& GetChanges() const { return Changes; }

	/** Texts of a member of the entries of a list, by the entries' names; empty where it is not written. */
	std::vector<std::pair<std::string, std::string>> GetEntries(const std::string& List, const std::string& Member) const;

	/** Adds the entry, or what it lacks. */
	void Require(const FDescriptorEntry& Entry);

private:
	bool Read();
	bool CheckList(const std::string& List);
	bool Fail(size_t Offset, const std::string& InReason);
	const FPlacedJson* FindEntry(const FPlacedJson& List, const std::string& Name) const;
	bool CompleteEntry(const FPlacedJson& Object, const FDescriptorEntry& Entry);
	void AddEntry(const FDescriptorEntry& Entry);
	std::string WriteEntry(const FDescriptorEntry& Entry, const FPlacedJson* Sample) const;
	void AddList(const FDescriptorEntry& Entry, const FPlacedMember* OtherList);
	std::string GetIndent(int Depth) const;
	void Change(std::string NewText, const std::string& What);

	std::string Text;
	FPlacedJson Root;
	bool bReadable = false;
	std::string Reason;
	int ReasonLine = 0;
	std::vector<std::string> Changes; // for people
};
