// Copyright Velmorant. All Rights Reserved.

#pragma once

class UProjectWrapper;

/** What the designer is working on, as the service's data tells. */
namespace VelmorantSelectedProject
{
	/** The designer's selected project, or null at any missing link of the chain. */
	UProjectWrapper* Find();
}
