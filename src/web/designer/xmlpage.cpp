// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/xmlpage.h"

#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// The entities of XHTML are declared in a file that isn't read.
class AnyEntity final : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return u"?"_s; }
};

} // namespace

bool isXmlPage(QStringView text)
{
    QXmlStreamReader xml(text.toString());
    AnyEntity entities;
    xml.setEntityResolver(&entities);
    if (!xml.readNextStartElement() || xml.name() != u"html")
        return false;
    while (!xml.atEnd())
        xml.readNext();
    return !xml.hasError();
}

} // namespace zephira
