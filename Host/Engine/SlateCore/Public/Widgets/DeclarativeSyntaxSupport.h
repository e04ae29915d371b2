// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Widgets/SNullWidget.h"

#include <tuple>
#include <utility>

/**
 * The declarative syntax of Slate:
 *
 *   SNew(SBox).HeightOverride(150.0f)[ SNew(STextBlock).Text(Label) ]
 *
 * SNew makes the widget, gives it the arguments that every widget has, then calls its Construct() with its FArguments and with
 * whatever else was passed to SNew.
 */
#define SNew(WidgetType, ...) \
	SlateDeclaration::MakeDeclaration<WidgetType>(#WidgetType, std::forward_as_tuple(__VA_ARGS__)) <<= typename WidgetType::FArguments()

/** SNew that also puts the widget into a shared or weak pointer, before its Construct() runs. */
#define SAssignNew(ExposeAs, WidgetType, ...) \
	SlateDeclaration::MakeDeclaration<WidgetType>(#WidgetType, std::forward_as_tuple(__VA_ARGS__)).Expose(ExposeAs) <<= typename WidgetType::FArguments()

// clang-format off
#define SLATE_BEGIN_ARGS(InWidgetType) \
public: \
	struct FArguments : public TSlateBaseNamedArgs<InWidgetType> \
	{ \
		typedef FArguments WidgetArgsType; \
		typedef InWidgetType WidgetType; \
		FArguments()

#define SLATE_END_ARGS() \
	};

/** A plain value, given once. */
#define SLATE_ARGUMENT(ArgType, ArgName) SLATE_ARGUMENT_DEFAULT(ArgType, ArgName) {}; \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		this->_##ArgName = MoveTemp(InArg); \
		return static_cast<WidgetArgsType&>(*this); \
	}
#define SLATE_ARGUMENT_DEFAULT(ArgType, ArgName) ArgType _##ArgName

/** The look of a part of the widget; null is the plain look. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName) \
	const ArgType* _##ArgName = nullptr; \
	WidgetArgsType& ArgName(const ArgType* InArg) \
	{ \
		this->_##ArgName = InArg; \
		return static_cast<WidgetArgsType&>(*this); \
	}

/** The ways to give an attribute: a value, another attribute, or something to ask each time. */
#define SLATE_ATTRIBUTE_SETTERS(AttrType, AttrName) \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		this->_##AttrName = MoveTemp(InAttribute); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename OwnerType, typename MethodType, typename... PayloadTypes> \
	WidgetArgsType& AttrName(OwnerType* InOwner, MethodType InMethod, PayloadTypes&&... InPayload) \
	{ \
		this->_##AttrName = TAttribute<AttrType>::CreateSP(InOwner, InMethod, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename OwnerType, typename MethodType, typename... PayloadTypes> \
	WidgetArgsType& AttrName(TSharedRef<OwnerType> InOwner, MethodType InMethod, PayloadTypes&&... InPayload) \
	{ \
		this->_##AttrName = TAttribute<AttrType>::CreateSP(InOwner, InMethod, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename FunctorType, typename... PayloadTypes> \
	WidgetArgsType& AttrName##_Lambda(FunctorType&& InFunctor, PayloadTypes&&... InPayload) \
	{ \
		this->_##AttrName = TAttribute<AttrType>::CreateLambda(std::forward<FunctorType>(InFunctor), std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename FunctionType, typename... PayloadTypes> \
	WidgetArgsType& AttrName##_Static(FunctionType InFunction, PayloadTypes&&... InPayload) \
	{ \
		this->_##AttrName = TAttribute<AttrType>::CreateStatic(InFunction, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename OwnerType, typename MethodType, typename... PayloadTypes> \
	WidgetArgsType& AttrName##_UObject(OwnerType* InOwner, MethodType InMethod, PayloadTypes&&... InPayload) \
	{ \
		this->_##AttrName = TAttribute<AttrType>::CreateUObject(InOwner, InMethod, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	}

/** A value that the widget asks for each time it needs it. */
#define SLATE_ATTRIBUTE(AttrType, AttrName) \
	TAttribute<AttrType> _##AttrName; \
	SLATE_ATTRIBUTE_SETTERS(AttrType, AttrName)

/** A delegate that the widget raises. `.Event(this, &SThis::Handler)` holds its owner weakly, by shared pointer. */
#define SLATE_EVENT(DelegateType, EventName) \
	DelegateType _##EventName; \
	WidgetArgsType& EventName(const DelegateType& InDelegate) \
	{ \
		this->_##EventName = InDelegate; \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename OwnerType, typename MethodType, typename... PayloadTypes> \
	WidgetArgsType& EventName(OwnerType* InOwner, MethodType InMethod, PayloadTypes&&... InPayload) \
	{ \
		this->_##EventName = DelegateType::CreateSP(InOwner, InMethod, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename OwnerType, typename MethodType, typename... PayloadTypes> \
	WidgetArgsType& EventName(TSharedRef<OwnerType> InOwner, MethodType InMethod, PayloadTypes&&... InPayload) \
	{ \
		this->_##EventName = DelegateType::CreateSP(InOwner, InMethod, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename FunctorType, typename... PayloadTypes> \
	WidgetArgsType& EventName##_Lambda(FunctorType&& InFunctor, PayloadTypes&&... InPayload) \
	{ \
		this->_##EventName = DelegateType::CreateLambda(std::forward<FunctorType>(InFunctor), std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename OwnerType, typename MethodType, typename... PayloadTypes> \
	WidgetArgsType& EventName##_Raw(OwnerType* InOwner, MethodType InMethod, PayloadTypes&&... InPayload) \
	{ \
		this->_##EventName = DelegateType::CreateRaw(InOwner, InMethod, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename FunctionType, typename... PayloadTypes> \
	WidgetArgsType& EventName##_Static(FunctionType InFunction, PayloadTypes&&... InPayload) \
	{ \
		this->_##EventName = DelegateType::CreateStatic(InFunction, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template<typename OwnerType, typename MethodType, typename... PayloadTypes> \
	WidgetArgsType& EventName##_UObject(OwnerType* InOwner, MethodType InMethod, PayloadTypes&&... InPayload) \
	{ \
		this->_##EventName = DelegateType::CreateUObject(InOwner, InMethod, std::forward<PayloadTypes>(InPayload)...); \
		return static_cast<WidgetArgsType&>(*this); \
	}

/** A place for one child: `.Header()[ SNew(...) ]`. */
#define SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	FNamedSlotContent _##SlotName; \
	TNamedSlotProperty<DeclarationType> SlotName() \
	{ \
		return TNamedSlotProperty<DeclarationType>(static_cast<DeclarationType&>(*this), this->_##SlotName); \
	}

/** The place that `SNew(...)[ child ]` fills; it also has its name. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName) \
	SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild) \
	{ \
		this->_##SlotName.Widget = InChild; \
		return static_cast<DeclarationType&>(*this); \
	}

/** The slots of a panel: `+ SPanel::Slot()[ child ]`, in the order written. */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName) \
	TArray<typename SlotType::FSlotArguments> _##SlotName; \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments& InSlot) \
	{ \
		this->_##SlotName.Add(InSlot); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments&& InSlot) \
	{ \
		this->_##SlotName.Add(MoveTemp(InSlot)); \
		return static_cast<WidgetArgsType&>(*this); \
	}

// clang-format on

/** The child that was given for a slot; the null widget when none was. */
struct FNamedSlotContent
{
	TSharedRef<SWidget> Widget = SNullWidget::NullWidget;
};

template<typename DeclarationType>
struct TNamedSlotProperty
{
	TNamedSlotProperty(DeclarationType& InOwner, FNamedSlotContent& InContent)
		: Owner(InOwner)
		, Content(InContent)
	{
	}

	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		Content.Widget = InChild;
		return Owner;
	}

	DeclarationType& Owner;
	FNamedSlotContent& Content;
};

/** The arguments that every widget has. */
struct FSlateBaseNamedArgs
{
	TAttribute<FText> _ToolTipText;
	TAttribute<bool> _IsEnabled = true;
	TAttribute<EVisibility> _Visibility = EVisibility::Visible;
	float _RenderOpacity = 1.0f;
	FName _Tag;
};

template<typename InWidgetType>
struct TSlateBaseNamedArgs : public FSlateBaseNamedArgs
{
	typedef InWidgetType WidgetType;
	typedef typename InWidgetType::FArguments WidgetArgsType;

	SLATE_ATTRIBUTE_SETTERS(FText, ToolTipText)
	SLATE_ATTRIBUTE_SETTERS(bool, IsEnabled)
	SLATE_ATTRIBUTE_SETTERS(EVisibility, Visibility)

	WidgetArgsType& Tag(FName InTag)
	{
		this->_Tag = InTag;
		return static_cast<WidgetArgsType&>(*this);
	}
};

namespace SlateDeclaration
{
	/** A widget that has been made but not constructed yet: construction waits for the arguments behind SNew. */
	template<typename WidgetType, typename ExtraTuple>
	class TDeclaration
	{
	public:
		TDeclaration(const ANSICHAR* InTypeName, ExtraTuple&& InExtra)
			: Widget(MakeShared<WidgetType>())
			, TypeName(InTypeName)
			, Extra(std::move(InExtra))
		{
		}

		template<typename PointerType>
		TDeclaration&& Expose(PointerType& OutPointer) &&
		{
			OutPointer = Widget;
			return std::move(*this);
		}

		TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) &&
		{
			Widget->SWidgetConstruct(InArgs, TypeName);
			std::apply([this, &InArgs](auto&&... InExtra) { Widget->Construct(InArgs, std::forward<decltype(InExtra)>(InExtra)...); }, std::move(Extra));
			return Widget;
		}

	private:
		TSharedRef<WidgetType> Widget;
		const ANSICHAR* TypeName;
		ExtraTuple Extra;
	};

	template<typename WidgetType, typename ExtraTuple>
	TDeclaration<WidgetType, ExtraTuple> MakeDeclaration(const ANSICHAR* TypeName, ExtraTuple&& Extra)
	{
		return TDeclaration<WidgetType, ExtraTuple>(TypeName, std::forward<ExtraTuple>(Extra));
	}
}
