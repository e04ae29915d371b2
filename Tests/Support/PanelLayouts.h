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

	inline const char* const DeveloperInfo = R"({
		"ParentClass": "/Script/VelmorantProEditor.VlmEWDevInfo",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "VlmImage", "Name": "DevImage"},
			{"Class": "TextBlock", "Name": "DevName"},
			{"Class": "TextBlock", "Name": "DevEmail"},
			{"Class": "VlmButton", "Name": "LogoutButton", "Properties": {"Label": "Sign out"}}]}})";

	inline const char* const ListDisplayer = R"({
		"ParentClass": "/Script/VelmorantProEditor.VlmEWListDisplayer",
		"Tree": {"Class": "VerticalBox", "Children": [
			{"Class": "VlmButton", "Name": "HomeButton", "Properties": {"Label": "Home"}},
			{"Class": "VlmButton", "Name": "SubSelectionButton", "Properties": {"Label": "Sub"}},
			{"Class": "ComboBoxString", "Name": "ModeSelector"},
			{"Class": "EditableText", "Name": "SearchText"},
			{"Class": "VlmButton", "Name": "NavUnits", "Properties": {"Label": "Units", "bSelectable": true}},
			{"Class": "VlmButton", "Name": "NavConfigurators", "Properties": {"Label": "Configurators", "bSelectable": true}},
			{"Class": "ListView", "Name": "ItemList"}]}})";

	inline const char* const MinimapTool = R"({
		"ParentClass": "/Script/VelmorantProEditor.VlmEWMinimapTool",
		"Tree": {"Class": "VerticalBox"}})";
}
