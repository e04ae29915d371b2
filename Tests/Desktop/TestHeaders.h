// Copyright Velmorant. All Rights Reserved.
// Qt's headers come before the engine's: see QtHeaders.h.

#pragma once

#include "QtHeaders.h"

#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
