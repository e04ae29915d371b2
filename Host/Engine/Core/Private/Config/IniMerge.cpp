// Copyright Velmorant. All Rights Reserved.

#include "Config/IniMerge.h"

#include "Config/IniSyntax.h"
#include "Files/TextCoding.h"

#include <algorithm>
#include <unordered_map>

namespace IniMerge
{
	constexpr size_t MaxKeyLength = 1023; // what a name can hold; a longer one is no key but text that happens to have a '='

	FName ToKey(std::string_view Key)
	{
		return FName(*TextCoding::ToFString(Key));
	}

	/**
	 * The values of all keys while layers are applied. Files of many megabytes repeat one key very often, so that looking for a value
	 * among those of its key must not be a walk over them.
	 */
	class FSectionBuilder
	{
	public:
		void Apply(const FIniFile& Layer, const FIniFile::FEntry& Entry)
		{
			Current = FOrigin{&Layer, Entry.Line};
			const char Operation = IniSyntax::IsPrefix(Entry.Key.front()) ? Entry.Key.front() : '=';
			const std::string_view Name = IniSyntax::WithoutPrefix(Entry.Key);
			if (Name.empty() || Operation == '@')
			{
				return;
			}
			FKey& Key = FindOrAddKey(Name);
			if (Operation == '=' || Operation == '!')
			{
				RemoveAll(Key);
			}
			if (Operation == '-')
			{
				Remove(Key, Entry.Value);
			}
			else if (Operation == '=' || Operation == '.' || (Operation != '!' && !Key.Places.contains(Entry.Value)))
			{
				Add(Key, Name, Entry.Value);
			}
		}

		std::unique_ptr<FConfigSection> Build() const
		{
			std::unique_ptr<FConfigSection> Result = std::make_unique<FConfigSection>();
			for (const FValue& Value : Values)
			{
				if (Value.RemovedBy.Layer == nullptr)
				{
					Result->Add(Value.Key, FConfigValue(TextCoding::ToFString(Value.Text)));
				}
			}
			return Result;
		}

		TArray<HostConfig::FRemovedValue> GetRemoved() const
		{
			TArray<HostConfig::FRemovedValue> Result;
			for (const FValue& Value : Values)
			{
				const auto& [Layer, Line] = Value.RemovedBy;
				if (Layer != nullptr)
				{
					Result.Add(HostConfig::FRemovedValue{Value.Key.ToString(), TextCoding::ToFString(Value.Text), Layer->GetPath(), Line.Number, TextCoding::ToFString(Layer->GetText(Line))});
				}
			}
			return Result;
		}

	private:
		/** A line of a layer. */
		struct FOrigin
		{
			const FIniFile* Layer = nullptr;
			FIniFile::FLine Line;
		};

		struct FKey
		{
			std::unordered_multimap<std::string, size_t> Places; // value to index into Values
		};

		struct FValue
		{
			FName Key;
			std::string Text;
			FOrigin RemovedBy; // of no layer while the value counts
		};

		FKey& FindOrAddKey(std::string_view Name) { return Keys[IniSyntax::Fold(Name)]; }

		void Add(FKey& Key, std::string_view Name, const std::string& Value)
		{
			Key.Places.emplace(Value, Values.size());
			Values.push_back(FValue{ToKey(Name), Value, FOrigin()});
		}

		void Remove(FKey& Key, const std::string& Value)
		{
			const auto [First, Last] = Key.Places.equal_range(Value);
			for (auto Place = First; Place != Last; ++Place)
			{
				Values[Place->second].RemovedBy = Current;
			}
			Key.Places.erase(First, Last);
		}

		void RemoveAll(FKey& Key)
		{
			for (const auto& [Text, Place] : Key.Places)
			{
				Values[Place].RemovedBy = Current;
			}
			Key.Places.clear();
		}

		std::unordered_map<std::string, FKey> Keys; // by folded name
		std::vector<FValue> Values; // in order, removed ones included
		FOrigin Current; // of the entry that is being applied
	};

	FSectionBuilder ApplyAll(const FLayers& Layers, const std::string& Section)
	{
		FSectionBuilder Builder;
		for (const std::shared_ptr<const FIniFile>& Layer : Layers)
		{
			for (const FIniFile::FEntry& Entry : Layer->ReadSection(Section))
			{
				if (Entry.Key.size() <= MaxKeyLength)
				{
					Builder.Apply(*Layer, Entry);
				}
			}
		}
		return Builder;
	}

	FLayers ReadLayers(const TArray<FString>& Files)
	{
		FLayers Layers;
		for (const FString& File : Files)
		{
			if (std::shared_ptr<const FIniFile> Layer = FIniFile::Read(File))
			{
				Layers.push_back(std::move(Layer));
			}
		}
		return Layers;
	}

	std::unique_ptr<FConfigSection> ReadAsWritten(const FIniFile& File, const std::string& Section)
	{
		if (!File.HasSection(Section))
		{
			return nullptr;
		}
		std::unique_ptr<FConfigSection> Result = std::make_unique<FConfigSection>();
		for (const FIniFile::FEntry& Entry : File.ReadSection(Section))
		{
			if (Entry.Key.size() <= MaxKeyLength)
			{
				Result->Add(ToKey(Entry.Key), FConfigValue(TextCoding::ToFString(Entry.Value)));
			}
		}
		return Result;
	}

	std::unique_ptr<FConfigSection> Merge(const FLayers& Layers, const std::string& Section)
	{
		const auto HasSection = [&Section](const std::shared_ptr<const FIniFile>& Layer) { return Layer->HasSection(Section); };
		if (std::none_of(Layers.begin(), Layers.end(), HasSection))
		{
			return nullptr;
		}
		return ApplyAll(Layers, Section).Build();
	}

	TArray<HostConfig::FRemovedValue> FindRemovedValues(const FLayers& Layers, const std::string& Section)
	{
		return ApplyAll(Layers, Section).GetRemoved();
	}
}
