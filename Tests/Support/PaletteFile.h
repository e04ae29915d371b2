// Copyright Velmorant. All Rights Reserved.

#pragma once

/**
 * A palette "Style" as its asset file has it. White and Both are simple colours; Text (half transparent), Accent and Both, again, are
 * style colours. Font styles are title (bold) and small.
 */
inline const char* const PaletteFile = R"({"Class": "/Script/VelmorantProUI.VelmorantUIStyleConfiguration", "Format": 1, "Objects": [
	{"Name": "Style", "Class": "/Script/VelmorantProUI.VelmorantUIStyleConfiguration", "Properties": {
		"SimpleColors": [
			{"ID": "White", "Color": {"R": 1, "G": 1, "B": 1, "A": 1}, "ContrastColor": {"R": 0, "G": 0, "B": 0.25, "A": 1}},
			{"ID": "Both", "Color": {"R": 0.5, "G": 0, "B": 0, "A": 1}, "ContrastColor": {"R": 0, "G": 0.5, "B": 0, "A": 1}}],
		"FontStyles": [{"ID": "title", "Typeface": "Bold", "Size": 14}, {"ID": "small", "Size": 8}],
		"StyleColors": [
			{"ID": "Text", "Color": {"R": 0.25, "G": 0.25, "B": 0.25, "A": 0.5}, "ContrastColor": {"R": 1, "G": 1, "B": 0, "A": 0.75}},
			{"ID": "Accent", "Color": {"R": 1, "G": 0.5, "B": 0, "A": 1}, "ContrastColor": {"R": 0, "G": 0.5, "B": 1, "A": 1}},
			{"ID": "Both", "Color": {"R": 0, "G": 0, "B": 1, "A": 1}, "ContrastColor": {"R": 0, "G": 0, "B": 0.5, "A": 1}}]}}]})";
