// Copyright Velmorant. All Rights Reserved.

#pragma once

#include <nlohmann/json_fwd.hpp>

template<class Key, class T, class IgnoredLess, class Allocator>
class THostJsonMembers;

/**
 * Documents of the host's files. The members of an object keep their order, so that files stay diffable, and are found in constant
 * time, so that a table may have as many rows as it likes. HostJsonMembers.h makes the type complete.
 */
using FHostJson = nlohmann::basic_json<THostJsonMembers>;
