# Copyright Velmorant. All Rights Reserved.
# The modules that a module of the engine depends on, read from its rules for the engine's build tool: one list serves both worlds.

# velmorant_read_build_rules(Rules OutPublic OutPrivate)
#   Rules  the module's .Build.cs. Each of its lists must read "PublicDependencyModuleNames.AddRange(new[] { "A", "B" });", the
#          private one likewise; an edit configures anew.
function(velmorant_read_build_rules Rules OutPublic OutPrivate)
	get_filename_component(Rules ${Rules} ABSOLUTE)
	if(NOT EXISTS ${Rules})
		message(FATAL_ERROR "${Rules} is missing; it names the modules to build with.")
	endif()
	set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${Rules})

	file(READ ${Rules} Text)
	string(REGEX REPLACE "//[^\n]*" "" Text "${Text}")
	string(REGEX MATCHALL "DependencyModuleNames" Mentions "${Text}")
	list(LENGTH Mentions NumMentions)
	if(NOT NumMentions EQUAL 2)
		message(FATAL_ERROR "${Rules} names dependencies in ${NumMentions} places; name all in one public and one private list.")
	endif()
	foreach(Kind Public Private)
		if(NOT Text MATCHES "${Kind}DependencyModuleNames\\.AddRange\\(new\\[\\][ \t\r\n]*{([^}]*)}\\);")
			message(FATAL_ERROR "${Rules} has no list ${Kind}DependencyModuleNames.AddRange(new[] { … });")
		endif()
		string(REGEX MATCHALL "[^\" ,\t\r\n]+" Modules "${CMAKE_MATCH_1}")
		set(${Out${Kind}} ${Modules} PARENT_SCOPE)
		list(APPEND AllModules ${Modules})
	endforeach()

	foreach(Module ${AllModules})
		if(NOT TARGET ${Module})
			message(FATAL_ERROR "${Rules} names ${Module}, which the editor host does not offer: no module built before is called so.")
		endif()
	endforeach()
endfunction()
