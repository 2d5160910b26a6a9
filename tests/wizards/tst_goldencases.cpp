// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/goldencases.h"
#include "support/testregistry.h"
#include "wizards/registerforms.h"

#include <QTest>

using namespace zephira;

/// What a user does in a wizard and the resulting text, in one folder per case.
class TstWizardGoldenCases final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data() { addGoldenCases(QStringLiteral("wizards")); }
    void text()
    {
        QFETCH(QString, folder);
        FormCatalogue catalogue;
        wizards::registerForms(catalogue);
        playGoldenCase(catalogue, folder);
    }
};

ZEPHIRA_TEST(TstWizardGoldenCases)

#include "tst_goldencases.moc"
