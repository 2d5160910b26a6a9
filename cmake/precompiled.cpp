// SPDX-License-Identifier: GPL-3.0-or-later
// The precompiled headers have targets of their own, which need a source file.
