# Copyright Velmorant. All Rights Reserved.
# cmake -DCOMPILER=… -DINCLUDES=a|b -DDEFINITIONS=A=1|B=2 -DSOURCES=x.cpp|y.cpp -P RefusedSources.cmake
# Every source must fail to compile, and the complaint must lie behind its includes: a header that is missing proves nothing.

string(REPLACE "|" ";" INCLUDES "${INCLUDES}")
string(REPLACE "|" ";" DEFINITIONS "${DEFINITIONS}")
string(REPLACE "|" ";" SOURCES "${SOURCES}")
list(REMOVE_DUPLICATES INCLUDES)
list(TRANSFORM INCLUDES PREPEND "-I")
list(REMOVE_ITEM DEFINITIONS "")
list(TRANSFORM DEFINITIONS PREPEND "-D")

if(NOT SOURCES)
	message(FATAL_ERROR "There is nothing to refuse")
endif()

set(Faults 0)
foreach(Source ${SOURCES})
	get_filename_component(Name ${Source} NAME)
	file(READ ${Source} Text)
	string(FIND "${Text}" "#include" Position REVERSE)
	string(SUBSTRING "${Text}" 0 ${Position} Before)
	string(REGEX MATCHALL "\n" Newlines "${Before}")
	list(LENGTH Newlines LastInclude)
	math(EXPR LastInclude "${LastInclude} + 1")

	execute_process(
		COMMAND ${COMPILER} -std=c++20 -fsyntax-only -Wall -Wextra -Wsuggest-override -Werror ${INCLUDES} ${DEFINITIONS} ${Source}
		RESULT_VARIABLE Result OUTPUT_VARIABLE Output ERROR_VARIABLE Output)

	set(Refused FALSE)
	if(NOT Result EQUAL 0 AND NOT Output MATCHES "fatal error")
		string(REGEX MATCHALL "${Name}:[0-9]+" Places "${Output}")
		foreach(Place ${Places})
			string(REGEX REPLACE ".*:" "" Line ${Place})
			if(Line GREATER LastInclude)
				set(Refused TRUE)
			endif()
		endforeach()
	endif()
	if(NOT Refused)
		message(STATUS "${Name} must be refused, but the compiler said (${Result}): ${Output}")
		math(EXPR Faults "${Faults} + 1")
	endif()
endforeach()

if(Faults GREATER 0)
	message(FATAL_ERROR "${Faults} source(s) were not refused as they must be")
endif()
list(LENGTH SOURCES Count)
message(STATUS "${Count} sources refused")
