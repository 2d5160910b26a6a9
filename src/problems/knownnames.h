// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "completion/completiondata.h"

#include <QHash>
#include <QSet>

#include <memory>

namespace zephira {

/// The names of HTML and style sheets, to be looked up quickly. What the data of completion doesn't list and pages use all
/// the same is added here.
class KnownNames
{
public:
    explicit KnownNames(std::shared_ptr<const CompletionData> data);

    /// Whether anything is known at all; without it, nothing is unknown.
    bool hasTags() const { return m_hasTags; }
    bool hasProperties() const { return m_hasProperties; }

    // Names are in lower case.
    bool isTag(QByteArrayView tag) const { return m_attributes.contains(tag); }
    bool isAttribute(QByteArrayView tag, QByteArrayView attribute) const;
    bool isProperty(QByteArrayView property) const { return m_properties.contains(property); }

private:
    std::shared_ptr<const CompletionData> m_data;
    QHash<QByteArrayView, QSet<QByteArrayView>> m_attributes;
    QSet<QByteArrayView> m_global;
    QSet<QByteArrayView> m_properties;
    bool m_hasTags = false;
    bool m_hasProperties = false;
};

} // namespace zephira
