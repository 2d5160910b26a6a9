// SPDX-License-Identifier: GPL-3.0-or-later
// The precompiled headers belong to a target of their own, which needs a source.
