// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/prompts.h"

namespace zephira {

/// Prompts for a benchmark, in which nothing should ask: every question is cancelled.
struct NoPrompts : Prompts {
    Answer ask(const Question &) override { return Answer::Cancel; }
    std::optional<QString> input(const InputRequest &) override { return {}; }
    std::optional<QString> file(const FileRequest &) override { return {}; }
    std::optional<QString> folder(const QString &, const QString &) override { return {}; }
    std::optional<quint32> colour(quint32) override { return {}; }
    std::optional<FontChoice> font(const FontChoice &) override { return {}; }
};

} // namespace zephira
