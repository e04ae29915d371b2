// Copyright Velmorant. All Rights Reserved.

#include "FunctionSource.h"

#include "EmitterNames.h"
#include "TableSource.h"
#include "TextTools.h"

namespace HeaderTool
{
	namespace FunctionSource
	{
		bool HasBlock(const FFunction& Function)
		{
			return Function.Returns() || !Function.Parameters.empty();
		}

		std::string BlockName(const FClass& Class, const FFunction& Function)
		{
			return Class.EngineName() + "_event" + Function.Name + "_Parms";
		}

		std::string QualifiedBlock(const FClass& Class, const FFunction& Function)
		{
			return StaticsName(Class.CppName) + "::Function_" + Function.Name + "::" + BlockName(Class, Function);
		}

		/** The result as one more property of the block. */
		FProperty ReturnProperty(const FFunction& Function)
		{
			FProperty Property;
			Property.Name = "ReturnValue";
			Property.Type = Function.Return;
			for (const char* Flag : {"CPF_Parm", "CPF_OutParm", "CPF_ReturnParm"})
			{
				Property.Flags.Add(Flag);
			}
			return Property;
		}

		std::string Arguments(const FFunction& Function, const std::string& Prefix)
		{
			std::vector<std::string> Parts;
			for (const FProperty& Parameter : Function.Parameters)
			{
				Parts.push_back(Prefix + Parameter.Name);
			}
			return Join(Parts, ", ");
		}

		bool IsOutput(const FProperty& Parameter)
		{
			return Parameter.Type.bReference && !Parameter.Flags.Has("CPF_ConstParm");
		}

		std::string Signature(const FClass& Class, const FFunction& Function, const std::string& Name)
		{
			return ReturnType(Function) + " " + OwnerName(Class) + "::" + Name + "(" + ParameterList(Function) + ")" + (Function.bConst ? " const" : "");
		}

		/** Fills a block from the arguments, as a local named Z_Parms. */
		void WriteFilledBlock(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
		{
			if (HasBlock(Function))
			{
				const std::string Filled = Arguments(Function, "");
				const std::string Separator = Function.Returns() && !Filled.empty() ? ", " : "";
				const std::string Result = Function.Returns() ? "{}" : "";
				Writer.Line(QualifiedBlock(Class, Function) + " Z_Parms{" + Filled + Separator + Result + "};");
			}
		}

		std::string BlockPointer(const FFunction& Function)
		{
			return HasBlock(Function) ? "&Z_Parms" : "nullptr";
		}

		/** After the call: results back into the caller's variables. */
		void WriteOutputs(FCodeWriter& Writer, const FFunction& Function)
		{
			for (const FProperty& Parameter : Function.Parameters)
			{
				if (IsOutput(Parameter))
				{
					Writer.Line(Parameter.Name + " = Z_Parms." + Parameter.Name + ";");
				}
			}
		}

		void WriteReturn(FCodeWriter& Writer, const FFunction& Function)
		{
			if (Function.Returns())
			{
				Writer.Line("return Z_Parms.ReturnValue;");
			}
		}

		/** execX: takes the parameters out of the frame and calls the native body. */
		void WriteThunk(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
		{
			const bool bInterface = Class.Kind == EClassKind::Interface;
			const std::string Owner = OwnerName(Class);
			const std::string Name = Function.Event == EFunctionEvent::Native ? Function.Name + "_Implementation" : Function.Name;
			std::string Call = Name + "(" + Arguments(Function, "Z_Parms.") + ")";
			Writer.Open("DEFINE_FUNCTION(" + Owner + "::exec" + Function.Name + ")");
			if (!Function.Parameters.empty())
			{
				Writer.Line("auto& Z_Parms = *reinterpret_cast<" + QualifiedBlock(Class, Function) + "*>(Stack.Locals);");
			}
			if (Function.bStatic)
			{
				Call = Owner + "::" + Call;
			}
			else if (bInterface)
			{
				Writer.Line(Owner + "* const Z_This = static_cast<" + Owner + "*>(Context->GetNativeInterfaceAddress(" + Class.CppName + "::StaticClass()));");
				Writer.Open("if (!Z_This)");
				Writer.Line("return; // implemented by a script class that leaves this function out");
				Writer.Close();
				Call = "Z_This->" + Call;
			}
			else
			{
				Call = "static_cast<" + Owner + "*>(Context)->" + Call;
			}
			const std::string Result = Function.Returns() ? "*static_cast<" + Function.Return.SpellValue(true) + "*>(RESULT_PARAM) = " : "";
			Writer.Line(Result + Call + ";");
			Writer.Close();
			Writer.Line();
		}

		/** X() of an event of a class: the body found by name, which may be a script's. */
		void WriteEvent(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
		{
			Writer.Open(Signature(Class, Function, Function.Name));
			Writer.Line("static const FName Z_Name(TEXT(\"" + Function.Name + "\"));");
			Writer.Line("UFunction* const Z_Function = FindFunctionChecked(Z_Name);");
			if (Function.Event == EFunctionEvent::Native)
			{
				Writer.Open("if (Z_Function->GetOwnerClass()->HasAnyClassFlags(CLASS_Native))");
				Writer.Line(std::string(Function.Returns() ? "return " : "") + Function.Name + "_Implementation(" + Arguments(Function, "") + ");");
				if (!Function.Returns())
				{
					Writer.Line("return;");
				}
				Writer.Close();
			}
			WriteFilledBlock(Writer, Class, Function);
			Writer.Line("const_cast<" + Class.CppName + "*>(this)->ProcessEvent(Z_Function, " + BlockPointer(Function) + ");");
			WriteOutputs(Writer, Function);
			WriteReturn(Writer, Function);
			Writer.Close();
			Writer.Line();
		}

		/** X() of an interface: calling it would pass the script's override by. */
		void WriteForbiddenCall(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
		{
			Writer.Open(Signature(Class, Function, Function.Name));
			Writer.Line("check(0 && \"Do not directly call Event functions in Interfaces. Call Execute_" + Function.Name + " instead.\");");
			if (Function.Returns())
			{
				Writer.Line(QualifiedBlock(Class, Function) + " Z_Parms;");
				WriteReturn(Writer, Function);
			}
			Writer.Close();
			Writer.Line();
		}

		void WriteExecute(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
		{
			const std::string Owner = OwnerName(Class);
			const std::string Const = Function.bConst ? "const " : "";
			const std::string Object = Function.bConst ? "const_cast<UObject*>(O)" : "O";
			Writer.Open(ReturnType(Function) + " " + Owner + "::Execute_" + Function.Name + "(" + ParameterList(Function, Const + "UObject* O") + ")");
			Writer.Line("check(O != NULL);");
			Writer.Line("check(O->GetClass()->ImplementsInterface(" + Class.CppName + "::StaticClass()));");
			WriteFilledBlock(Writer, Class, Function);
			Writer.Line("static const FName Z_Name(TEXT(\"" + Function.Name + "\"));");
			Writer.Open("if (UFunction* const Z_Function = O->FindFunction(Z_Name))");
			Writer.Line(Object + "->ProcessEvent(Z_Function, " + BlockPointer(Function) + ");");
			WriteOutputs(Writer, Function);
			Writer.Close();
			if (Function.Event == EFunctionEvent::Native)
			{
				Writer.Open("else if (" + Const + Owner + "* const Z_This = static_cast<" + Const + Owner + "*>(O->GetNativeInterfaceAddress(" + Class.CppName + "::StaticClass())))");
				Writer.Line(std::string(Function.Returns() ? "Z_Parms.ReturnValue = " : "") + "Z_This->" + Function.Name + "_Implementation(" + Arguments(Function, "") + ");");
				Writer.Close();
			}
			WriteReturn(Writer, Function);
			Writer.Close();
			Writer.Line();
		}

		void WriteDefaultImplementation(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
		{
			Writer.Open(Signature(Class, Function, Function.Name + "_Implementation"));
			if (Function.Returns())
			{
				Writer.Line("return {};");
			}
			Writer.Close();
			Writer.Line();
		}
	}

	void WriteFunctionTables(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
	{
		Writer.Open("struct Function_" + Function.Name);
		std::vector<FProperty> Properties = Function.Parameters;
		if (Function.Returns())
		{
			Properties.push_back(FunctionSource::ReturnProperty(Function));
		}
		if (!Properties.empty())
		{
			Writer.Open("struct " + FunctionSource::BlockName(Class, Function));
			for (const FProperty& Property : Properties)
			{
				Writer.Line(Property.Type.SpellValue(true) + " " + Property.Name + "{};");
			}
			Writer.Close(";");
		}
		WriteProperties(Writer, "Parameters", FunctionSource::BlockName(Class, Function), Properties);
		WriteMetaData(Writer, "Z_MetaData", Function.Meta);
		Writer.Close(";");
	}

	void WriteFunctionRecord(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
	{
		const std::string Scope = "Function_" + Function.Name + "::";
		const size_t Count = Function.Parameters.size() + (Function.Returns() ? 1 : 0);
		Writer.Open();
		Writer.Line(".Name = " + Quote(Function.Name) + ",");
		Writer.Line(".Flags = " + Function.Flags.ToExpression() + ",");
		Writer.Line(".ParmsSize = " + (Count ? "sizeof(" + Scope + FunctionSource::BlockName(Class, Function) + ")" : std::string("0")) + ",");
		Writer.Line(TableFields("Parameters", Scope + "Parameters", Count) + ",");
		Writer.Line(".Thunk = " + (Function.HasNativeBody() ? "&" + OwnerName(Class) + "::exec" + Function.Name : std::string("nullptr")) + ",");
		Writer.Line(MetaDataFields(Scope + "Z_MetaData", Function.Meta));
		Writer.Close(",");
	}

	void WriteFunctionBodies(FCodeWriter& Writer, const FClass& Class, const FFunction& Function)
	{
		if (Function.HasNativeBody())
		{
			FunctionSource::WriteThunk(Writer, Class, Function);
		}
		const bool bInterface = Class.Kind == EClassKind::Interface;
		if (bInterface)
		{
			FunctionSource::WriteForbiddenCall(Writer, Class, Function);
			FunctionSource::WriteExecute(Writer, Class, Function);
			if (DeclaresImplementation(Class, Function))
			{
				FunctionSource::WriteDefaultImplementation(Writer, Class, Function);
			}
		}
		else if (Function.Event != EFunctionEvent::None)
		{
			FunctionSource::WriteEvent(Writer, Class, Function);
		}
	}
}
