// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>

namespace zephira {

/// An entry of the list of document types. The divider has no line.
struct DocumentType {
    QStringView name;
    QStringView line;
};

/// In the order of the list.
std::span<const DocumentType> documentTypes();

} // namespace zephira
