// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"

/** Whether a widget shows, takes room, and can be hit. A class with constants, not an enum. */
struct EVisibility
{
public:
	/** Shows and can be hit. */
	static const EVisibility Visible;
	/** Neither shows nor takes room. */
	static const EVisibility Collapsed;
	/** Takes room without showing. */
	static const EVisibility Hidden;
	/** Shows; neither it nor its children can be hit. */
	static const EVisibility HitTestInvisible;
	/** Shows; it cannot be hit, its children can. */
	static const EVisibility SelfHitTestInvisible;

	constexpr EVisibility() = default;

	constexpr bool operator==(const EVisibility& Other) const { return Value == Other.Value; }
	constexpr bool operator!=(const EVisibility& Other) const { return Value != Other.Value; }

	constexpr bool IsVisible() const { return Value != EValue::Collapsed && Value != EValue::Hidden; }

private:
	enum class EValue : uint8
	{
		Visible,
		Collapsed,
		Hidden,
		HitTestInvisible,
		SelfHitTestInvisible,
	};

	constexpr explicit EVisibility(EValue InValue)
		: Value(InValue)
	{
	}

	EValue Value = EValue::Visible;
};

inline constexpr EVisibility EVisibility::Visible{EVisibility::EValue::Visible};
inline constexpr EVisibility EVisibility::Collapsed{EVisibility::EValue::Collapsed};
inline constexpr EVisibility EVisibility::Hidden{EVisibility::EValue::Hidden};
inline constexpr EVisibility EVisibility::HitTestInvisible{EVisibility::EValue::HitTestInvisible};
inline constexpr EVisibility EVisibility::SelfHitTestInvisible{EVisibility::EValue::SelfHitTestInvisible};
