// Copyright Velmorant. All Rights Reserved.
// Included by ScriptDelegates.h. Types and names of the parameters alternate; the names are for the header tool and the reader.

#pragma once

#define HOST_DYNAMIC_DELEGATE(DelegateName, ...) \
	class DelegateName : public TBaseDynamicDelegate<__VA_ARGS__> \
	{ \
	public: \
		using TBaseDynamicDelegate<__VA_ARGS__>::TBaseDynamicDelegate; \
	};

/** ParameterNames: all of them, each ended by a zero character. */
#define HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, ParameterNames, ...) \
	class DelegateName : public TBaseDynamicMulticastDelegate<__VA_ARGS__> \
	{ \
	public: \
		static constexpr const char* HostParameterNames = ParameterNames; \
	};

#define DECLARE_DYNAMIC_DELEGATE(DelegateName) HOST_DYNAMIC_DELEGATE(DelegateName, void)
#define DECLARE_DYNAMIC_DELEGATE_RetVal(ReturnValueType, DelegateName) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, "")

#define DECLARE_DYNAMIC_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(ReturnValueType, DelegateName, Param1Type, Param1Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0", Param1Type)

#define DECLARE_DYNAMIC_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0", Param1Type, Param2Type)

#define DECLARE_DYNAMIC_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_ThreeParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0" #Param3Name "\0", Param1Type, Param2Type, Param3Type)

#define DECLARE_DYNAMIC_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_FourParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0" #Param3Name "\0" #Param4Name "\0", Param1Type, Param2Type, Param3Type, Param4Type)

#define DECLARE_DYNAMIC_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_FiveParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0" #Param3Name "\0" #Param4Name "\0" #Param5Name "\0", Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_DYNAMIC_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_SixParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0" #Param3Name "\0" #Param4Name "\0" #Param5Name "\0" #Param6Name "\0", Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type)

#define DECLARE_DYNAMIC_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_SevenParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0" #Param3Name "\0" #Param4Name "\0" #Param5Name "\0" #Param6Name "\0" #Param7Name "\0", Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type)

#define DECLARE_DYNAMIC_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_EightParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0" #Param3Name "\0" #Param4Name "\0" #Param5Name "\0" #Param6Name "\0" #Param7Name "\0" #Param8Name "\0", Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type)

#define DECLARE_DYNAMIC_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) HOST_DYNAMIC_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)
#define DECLARE_DYNAMIC_DELEGATE_RetVal_NineParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, #Param1Name "\0" #Param2Name "\0" #Param3Name "\0" #Param4Name "\0" #Param5Name "\0" #Param6Name "\0" #Param7Name "\0" #Param8Name "\0" #Param9Name "\0", Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type)
