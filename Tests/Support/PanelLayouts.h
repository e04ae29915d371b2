// Copyright Velmorant. All Rights Reserved.

#pragma once

/** Bare layouts of the panels: the widgets that they bind, nothing that a designer would add. */
namespace PanelLayouts
{
	inline const char* const Login = R"({
		"ParentClass": "/Script/VelmorantProEditor.VlmEWLoginUser",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "EditableText", "Name": "UserName"},
			{"Class": "EditableText", "Name": "UserPassword", "Properties": {"IsPassword": true}},
			{"Class": "CheckBox", "Name": "RememberUserCheckBox"},
			{"Class": "VlmButton", "Name": "SummitButton", "Properties": {"Label": "Sign in"}}]},
		"Calls": {"RememberUserCheckBox.OnCheckStateChanged": [{"Call": "SetRememberMeOption"}]}})";

	inline const char* const ProjectSelector = R"({
		"ParentClass": "/Script/VelmorantProEditor.VlmEWProjectSelector",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "EditableText", "Name": "ProjectKeyCode"},
			{"Class": "EditableText", "Name": "ProjectName"},
			{"Class": "ComboBoxString", "Name": "ProjectSelection"},
			{"Class": "CheckBox", "Name": "ForceUpdateCheckBox"},
			{"Class": "VlmButton", "Name": "SetAsDefault", "Properties": {"Label": "Set as default"}},
			{"Class": "VlmButton", "Name": "CopyApyKey", "Properties": {"Label": "Copy"}}]}})";
}
