// Copyright Velmorant. All Rights Reserved.

#include "HeaderTool.h"

#include <iostream>

int main(int ArgumentCount, char** Arguments)
{
	return HeaderTool::RunHeaderTool({Arguments + 1, Arguments + ArgumentCount}, std::cout, std::cerr);
}
