# Copyright Velmorant. All Rights Reserved.
# cmake -DCOMPILER=… -DFLAGS=file -DHEADER=precompiled.h -DSOURCES=x.cpp|y.cpp -P RefusedSources.cmake
# Every source must fail to compile, and the compiler must say what the source states: a slip of the pen proves nothing.

string(REPLACE "|" ";" SOURCES "${SOURCES}")
if(NOT SOURCES)
	message(FATAL_ERROR "There is nothing to refuse")
endif()

set(ENV{LC_ALL} C) # English messages, with plain quotation marks
set(Faults 0)
foreach(Source ${SOURCES})
	get_filename_component(Name ${Source} NAME)
	file(STRINGS ${Source} Stated LIMIT_COUNT 1 REGEX "^// compiler: .")
	string(REPLACE "// compiler: " "" Stated "${Stated}")
	execute_process(COMMAND ${COMPILER} @${FLAGS} -fsyntax-only -include ${HEADER} ${Source} RESULT_VARIABLE Result OUTPUT_QUIET ERROR_VARIABLE Said)
	string(FIND "${Said}" "${Stated}" Place)
	set(Fault "")
	if(Stated STREQUAL "")
		set(Fault "does not state what the compiler says; add a line '// compiler: part of the message'")
	elseif(Result EQUAL 0)
		set(Fault "compiles")
	elseif(Place EQUAL -1)
		set(Fault "must be refused with '${Stated}', but the compiler said: ${Said}")
	endif()
	if(Fault)
		message(STATUS "${Name} ${Fault}")
		math(EXPR Faults "${Faults} + 1")
	endif()
endforeach()

list(LENGTH SOURCES Count)
if(Faults GREATER 0)
	message(FATAL_ERROR "${Faults} of ${Count} sources were not refused as they must be")
endif()
message(STATUS "${Count} sources refused")
