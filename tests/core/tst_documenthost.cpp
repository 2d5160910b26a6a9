// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/documenthost.h"
#include "support/fakes.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstDocumentHost final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void project_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isText");
        QTest::addColumn<bool>("isProject");
        QTest::newRow("the initial text") << u"Project Path"_s << false << false;
        QTest::newRow("another case") << u"project path"_s << true << true;
        QTest::newRow("emptied") << u""_s << true << false;
        QTest::newRow("a folder") << u"/site/"_s << true << true;
        QTest::newRow("one that is gone") << u"/gone/"_s << true << true;
    }

    void project()
    {
        QFETCH(QString, text);
        FakeDocumentHost host;
        host.project = text;
        QTEST(hasProjectText(host), "isText");
        QTEST(hasProject(host), "isProject");
    }
};

ZEPHIRA_TEST(TstDocumentHost)

#include "tst_documenthost.moc"
