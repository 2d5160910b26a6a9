// SPDX-License-Identifier: GPL-3.0-or-later
// The headers that nearly every form includes, compiled once per target.
#pragma once
#include <QtWidgets/QtWidgets>
