// Copyright Velmorant. All Rights Reserved.

#pragma once

#include "Templates/SharedPointerFwd.h"
#include "Templates/UnrealTemplate.h"

namespace SharedPointerInternals
{
	/**
	 * Counts the owners of one object. The object goes with its last strong reference, the controller with its last reference
	 * of either kind; all strong references together hold one weak one.
	 */
	class FReferenceController : private FNoncopyable
	{
	public:
		virtual ~FReferenceController() = default;

		int32 GetSharedReferenceCount() const { return SharedCount; }
		void AddShared() { ++SharedCount; }
		void AddWeak() { ++WeakCount; }

		void ReleaseShared()
		{
			if (--SharedCount == 0)
			{
				DestroyObject();
				ReleaseWeak();
			}
		}

		void ReleaseWeak()
		{
			if (--WeakCount == 0)
			{
				delete this;
			}
		}

	private:
		virtual void DestroyObject() = 0;

		int32 SharedCount = 1;
		int32 WeakCount = 1;
	};

	/** The object was made elsewhere. */
	template<typename ObjectType, typename DeleterType>
	class TReferenceControllerWithDeleter final : public FReferenceController
	{
	public:
		template<typename ArgType>
		TReferenceControllerWithDeleter(ObjectType* InObject, ArgType&& InDeleter)
			: Object(InObject)
			, Deleter(Forward<ArgType>(InDeleter))
		{
		}

	private:
		virtual void DestroyObject() override { Deleter(Object); }

		ObjectType* Object;
		[[no_unique_address]] DeleterType Deleter;
	};

	/** The object lives in the same piece of memory. */
	template<typename ObjectType>
	class TIntrusiveReferenceController final : public FReferenceController
	{
	public:
		template<typename... ArgTypes>
		explicit TIntrusiveReferenceController(int, ArgTypes&&... Args)
		{
			new (static_cast<void*>(Storage)) ObjectType(Forward<ArgTypes>(Args)...);
		}

		ObjectType* GetObjectPtr() { return reinterpret_cast<ObjectType*>(Storage); }

	private:
		virtual void DestroyObject() override { GetObjectPtr()->~ObjectType(); }

		alignas(ObjectType) uint8 Storage[sizeof(ObjectType)];
	};

	template<typename ObjectType>
	struct TDefaultDeleter
	{
		void operator()(ObjectType* Object) const { delete Object; }
	};

	template<typename ObjectType>
	FReferenceController* NewController(ObjectType* Object)
	{
		return new TReferenceControllerWithDeleter<ObjectType, TDefaultDeleter<ObjectType>>(Object, TDefaultDeleter<ObjectType>());
	}

	/** One counted reference to a controller, or none. */
	template<bool bShared>
	class TReferencer
	{
	public:
		TReferencer() = default;

		/** Takes over a reference that is already counted. */
		explicit TReferencer(FReferenceController* InController)
			: Controller(InController)
		{
		}

		TReferencer(const TReferencer& Other)
			: Controller(Other.Controller)
		{
			AddReference();
		}

		TReferencer(TReferencer&& Other) noexcept
			: Controller(Exchange(Other.Controller, nullptr))
		{
		}

		/** From shared to weak, or from weak to shared; the latter gives nothing when the object is gone. */
		explicit TReferencer(const TReferencer<!bShared>& Other)
			: Controller(Other.Controller)
		{
			if (bShared && Controller && Controller->GetSharedReferenceCount() == 0)
			{
				Controller = nullptr;
			}
			AddReference();
		}

		~TReferencer()
		{
			ReleaseReference(Controller);
		}

		TReferencer& operator=(const TReferencer& Other)
		{
			TReferencer Copy(Other);
			return *this = MoveTemp(Copy);
		}

		TReferencer& operator=(TReferencer&& Other) noexcept
		{
			if (this != &Other)
			{
				// The old reference goes last: releasing it may come back here.
				FReferenceController* const Old = Exchange(Controller, Exchange(Other.Controller, nullptr));
				ReleaseReference(Old);
			}
			return *this;
		}

		bool IsValid() const { return Controller != nullptr && Controller->GetSharedReferenceCount() > 0; }
		int32 GetSharedReferenceCount() const { return Controller ? Controller->GetSharedReferenceCount() : 0; }
		bool IsUnique() const { return GetSharedReferenceCount() == 1; }

	private:
		friend class TReferencer<!bShared>;

		void AddReference()
		{
			if (!Controller)
			{
				return;
			}
			if constexpr (bShared)
			{
				Controller->AddShared();
			}
			else
			{
				Controller->AddWeak();
			}
		}

		static void ReleaseReference(FReferenceController* InController)
		{
			if (!InController)
			{
				return;
			}
			if constexpr (bShared)
			{
				InController->ReleaseShared();
			}
			else
			{
				InController->ReleaseWeak();
			}
		}

		FReferenceController* Controller = nullptr;
	};

	using FSharedReferencer = TReferencer<true>;
	using FWeakReferencer = TReferencer<false>;

	/** What MakeShareable returns: on its way into a shared pointer or reference, which takes it over. */
	template<class ObjectType>
	struct TRawPtrProxy
	{
		ObjectType* Object;
		FReferenceController* Controller; // null: delete Object in the ordinary way
	};

	struct FStaticCastTag
	{
	};

	// Overload resolution finds out whether an object derives from TSharedFromThis, and with which type.
	template<class SharedType, class OtherType, ESPMode Mode>
	void EnableSharedFromThis(const TSharedRef<SharedType, Mode>* InSharedRef, SharedType* Object, const TSharedFromThis<OtherType, Mode>* Shareable);

	template<class SharedType, class OtherType, ESPMode Mode>
	void EnableSharedFromThis(const TSharedPtr<SharedType, Mode>* InSharedPtr, SharedType* Object, const TSharedFromThis<OtherType, Mode>* Shareable);

	inline void EnableSharedFromThis(...)
	{
	}
}
