// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/wellformed.h"

#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

namespace zephira {

namespace {

/// The entities of XHTML are declared in a file that isn't read.
class AnyEntity final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return QStringLiteral("?"); }
};

} // namespace

bool isWellFormed(QStringView text)
{
    QXmlStreamReader xml(text.toString());
    AnyEntity entities;
    xml.setEntityResolver(&entities);
    while (!xml.atEnd())
        xml.readNext();
    return !xml.hasError();
}

} // namespace zephira
