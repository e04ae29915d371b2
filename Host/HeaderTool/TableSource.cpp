// Copyright Velmorant. All Rights Reserved.

#include "TableSource.h"

#include "EmitterNames.h"

namespace HeaderTool
{
	void WriteMetaData(FCodeWriter& Writer, const std::string& Name, const FMetaData& Meta)
	{
		if (Meta.GetEntries().empty())
		{
			return;
		}
		Writer.Open("static constexpr UE::Reflection::FMetaDataRecord " + Name + "[] =");
		for (const FMetaEntry& Entry : Meta.GetEntries())
		{
			Writer.Line("{" + Quote(Entry.Key) + ", " + Quote(Entry.Value) + "},");
		}
		Writer.Close(";");
	}

	std::string TableFields(const std::string& Field, const std::string& Name, size_t Count)
	{
		return "." + Field + " = " + (Count ? Name : "nullptr") + ", .Num" + Field + " = " + std::to_string(Count);
	}

	std::string MetaDataFields(const std::string& Name, const FMetaData& Meta)
	{
		return TableFields("MetaData", Name, Meta.GetEntries().size());
	}

	void WriteProperties(FCodeWriter& Writer, const std::string& Name, const std::string& Owner, const std::vector<FProperty>& Properties)
	{
		for (const FProperty& Property : Properties)
		{
			WriteMetaData(Writer, "MetaData_" + Property.Name, Property.Meta);
		}
		if (Properties.empty())
		{
			return;
		}
		Writer.Open("static constexpr UE::Reflection::FPropertyRecord " + Name + "[] =");
		for (const FProperty& Property : Properties)
		{
			Writer.Open();
			Writer.Line(".Name = " + Quote(Property.Name) + ",");
			Writer.Line(".Flags = " + Property.Flags.ToExpression() + ",");
			Writer.Line(".Offset = STRUCT_OFFSET(" + Owner + ", " + Property.Name + "),");
			Writer.Line(".Make = &UE::Reflection::MakeProperty<" + Property.Type.SpellValue(false) + ">,");
			Writer.Line(MetaDataFields("MetaData_" + Property.Name, Property.Meta));
			Writer.Close(",");
		}
		Writer.Close(";");
	}

	void WriteRegistrar(FCodeWriter& Writer, const std::string& RegistrarType, const std::string& CppName)
	{
		Writer.Line();
		Writer.Line("static UE::Reflection::" + RegistrarType + " Z_Registrar_" + CppName + "(" + StaticsName(CppName) + "::Z_Record);");
		Writer.Line();
	}
}
