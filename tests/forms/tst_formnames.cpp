// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktoptranslation.h"
#include "files/diskfilestore.h"
#include "forms/allforms.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/formnames.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// Compares each form of the catalogue, both its .ui file and the running form, with its list of names.
class TstFormNames final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawn_data() { addForms(); }
    void drawn()
    {
        QFETCH(QString, form);
        const QString uiFile = uiFileOf(form);
        if (uiFile.isEmpty()) {
            QVERIFY2(std::ranges::all_of(readFormNames(form), &NamedControl::madeByCode), "there is no .ui file");
            return;
        }
        const QStringList differences = differencesFromUi(readFormNames(form), readUiFile(uiFile));
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join(u'\n')));
    }

    void living_data() { addForms(); }
    void living()
    {
        QFETCH(QString, form);
        TestContext world;
        const FormCatalogue catalogue = allForms();
        const LivingForm living(catalogue, form, world);
        QCOMPARE(living.widget().objectName(), form);
        QVERIFY2(!readFormNames(form).isEmpty(), "there is no list of names");
        const QStringList differences = differencesFromForm(readFormNames(form), living.widget());
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join(u'\n')));
    }

    /// Names and captions are the same in every language.
    void inAnotherLanguage_data() { addForms(); }
    void inAnotherLanguage()
    {
        const DiskFileStore files;
        const Translation german(files, {QStringLiteral(ZEPHIRA_BUILD)}, {u"de"_s});
        QCOMPARE(QCoreApplication::translate("TextMenu", "&Sort"), u"&Sortieren"_s);
        living();
    }

private:
    static void addForms()
    {
        QTest::addColumn<QString>("form");
        const QStringList names = allForms().names();
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }
};

ZEPHIRA_TEST(TstFormNames)

#include "tst_formnames.moc"
