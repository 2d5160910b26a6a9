// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/documenttypes.h"
#include "wizards/servervariables.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The lists that wizards offer, entry by entry.
class TstWizardLists final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentTypesInOrder()
    {
        QStringList rows;
        for (const DocumentType &type : documentTypes())
            rows.append(type.name.toString() + u'|' + type.line.toString());
        QCOMPARE(rows,
                 (QStringList{
                     u"HTML 4.01 Transitional|<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\">"_s,
                     u"HTML 4.01 Strict|<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\">"_s,
                     u"HTML 4.01 Frameset|<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Frameset//EN\">"_s,
                     u"-|"_s,
                     u"HTML 4.0 Transitional|<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">"_s,
                     u"HTML 4.0 Strict|<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\">"_s,
                     u"HTML 4.0 Frameset|<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Frameset//EN\">"_s,
                 }));
    }

    void serverVariablesInOrder()
    {
        QCOMPARE(serverVariables().join(u'|'),
                 u"ALL_HTTP\t|AUTH_PASS\t|AUTH_TYPE|CONTENT_LENGTH|CONTENT_TYPE|GATEWAY_INTERFACE\t|PATH_INFO|"
                 "PATH_TRANSLATED|QUERY_STRING|REMOTE_ADDR|REMOTE_HOST|REMOTE_IDENT|REMOTE_USER|REQUEST_BODY|"
                 "REQUEST_METHOD|SCRIPT_NAME|SERVER_NAME|SERVER_PORT|SERVER_PROTOCOL|SERVER_SOFTWARE"_s);
    }
};

ZEPHIRA_TEST(TstWizardLists)

#include "tst_wizardlists.moc"
