# Copyright Velmorant. All Rights Reserved.
# cmake -DCMAKE_FOLDER=… -P BuildRules.cmake
# Rules that cannot be read, or name what the host does not have, end configuring with a message that says so.

if(RULES)
	include(${CMAKE_FOLDER}/VelmorantBuildRules.cmake)
	velmorant_read_build_rules(${RULES} Public Private)
	return()
endif()

function(expect_refusal Text Message)
	set(Rules ${CMAKE_CURRENT_BINARY_DIR}/Refused.Build.cs)
	file(WRITE ${Rules} "${Text}")
	execute_process(COMMAND ${CMAKE_COMMAND} -DRULES=${Rules} -DCMAKE_FOLDER=${CMAKE_FOLDER} -P ${CMAKE_CURRENT_LIST_FILE}
		RESULT_VARIABLE Result ERROR_VARIABLE Output)
	string(REGEX REPLACE "[ \n]+" " " Output "${Output}")
	if(Result EQUAL 0 OR NOT Output MATCHES "Refused.Build.cs ${Message}")
		message(SEND_ERROR "These rules must be refused with \"${Message}\", but cmake said (${Result}): ${Output}\n${Text}")
	endif()
endfunction()

set(Public "PublicDependencyModuleNames.AddRange(new[]\n{\n\t// \"Not this\"\n\t\"Nowhere\"\n});")
set(Private "PrivateDependencyModuleNames.AddRange(new[] { \"Elsewhere\" });")
expect_refusal("${Public}${Private}" "names Nowhere, which the editor host does not offer")
expect_refusal("${Public}" "names dependencies in 1 places")
expect_refusal("${Public}${Public}" "has no list PrivateDependencyModuleNames")
expect_refusal("${Public}${Private}PrivateDependencyModuleNames.Add(\"C\");" "names dependencies in 3 places")
