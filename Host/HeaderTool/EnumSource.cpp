// Copyright Velmorant. All Rights Reserved.

#include "EnumSource.h"

#include "EmitterNames.h"
#include "TableSource.h"

namespace HeaderTool
{
	void WriteEnumSource(FCodeWriter& Writer, const FEnum& Enum)
	{
		const std::string Statics = StaticsName(Enum.Name);
		Writer.Open("struct " + Statics);
		for (const FEnumerator& Enumerator : Enum.Enumerators)
		{
			WriteMetaData(Writer, "MetaData_" + Enumerator.Name, Enumerator.Meta);
		}
		WriteMetaData(Writer, "Z_MetaData", Enum.Meta);
		if (!Enum.Enumerators.empty())
		{
			Writer.Open("static constexpr UE::Reflection::FEnumeratorRecord Z_Enumerators[] =");
			for (const FEnumerator& Enumerator : Enum.Enumerators)
			{
				const std::string Name = Enum.Form == EEnumForm::Plain ? Enumerator.Name : Enum.Name + "::" + Enumerator.Name;
				const std::string Value = Enum.Form == EEnumForm::Plain ? "::" + Name : Name;
				Writer.Line("{.Name = " + Quote(Name) + ", .Value = static_cast<int64>(" + Value + "), " + MetaDataFields("MetaData_" + Enumerator.Name, Enumerator.Meta) + "},");
			}
			Writer.Close(";");
		}
		Writer.Open("static inline UE::Reflection::FEnumRecord Z_Record =");
		Writer.Line(".Name = " + Quote(Enum.Name) + ",");
		Writer.Line(".CppType = " + Quote(Enum.CppType()) + ",");
		Writer.Line(".Package = " + Quote(PackageName(*Enum.Header)) + ",");
		Writer.Line(TableFields("Enumerators", "Z_Enumerators", Enum.Enumerators.size()) + ",");
		Writer.Line(MetaDataFields("Z_MetaData", Enum.Meta) + ",");
		Writer.Line(".Enum = nullptr");
		Writer.Close(";");
		Writer.Close(";");
		Writer.Line();
		Writer.Line("template<> UEnum* StaticEnum<" + Enum.CppType() + ">()");
		Writer.Open();
		Writer.Line("return UE::Reflection::GetEnum(" + Statics + "::Z_Record);");
		Writer.Close();
		WriteRegistrar(Writer, "FEnumRegistrar", Enum.Name);
	}
}
