// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/goldencases.h"
#include "support/testregistry.h"
#include "tags/registerforms.h"

#include <QTest>

using namespace zephira;

/// What a user does in the tag editor and the resulting text, in one folder per case.
class TstTagGoldenCases final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data() { addGoldenCases(QStringLiteral("tags")); }
    void text()
    {
        QFETCH(QString, folder);
        FormCatalogue catalogue;
        tags::registerForms(catalogue);
        playGoldenCase(catalogue, folder);
    }
};

ZEPHIRA_TEST(TstTagGoldenCases)

#include "tst_goldencases.moc"
