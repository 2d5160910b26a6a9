// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/eventwait.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/goldencases.h"
#include "support/testregistry.h"
#include "tools/realtidy.h"
#include "tools/registerforms.h"

#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

/// A page that is cleaned, a folder for each case: page.html is the file, choices.txt says what is chosen in the form,
/// expected.html is the text that is sent, and messages.txt the list.
class TstValidatorGoldenCases final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data() { addGoldenCases(u"validate"_s); }
    void text()
    {
        QFETCH(QString, folder);
        TestContext world;
        world.document.language = u"Html"_s;
        world.document.dialogFile = u"/page.html"_s;
        world.files.contents[world.document.dialogFile] = goldenContent(folder + u"/page.html"_s);
        QStringList steps = goldenLines(folder + u"/choices.txt"_s);
        // The language is the document's.
        if (steps.removeOne(u"lblinput = XML"_s))
            world.document.language = u"XML"_s;

        FormCatalogue forms;
        tools::registerForms(forms, realTidy);
        const LivingForm form(forms, u"frmvalidate"_s, world);
        for (const QString &step : std::as_const(steps))
            playGoldenStep(form, step);
        const QAbstractItemModel &list = *form.get<QTreeView>(u"ListView1"_s).model();
        world.prompts.expect({u"Are you sure you want to send changes to the main Zephira window?"_s,
                              {},
                              Question::Icon::Question,
                              Question::Buttons::YesNo},
                             Answer::Yes);
        QByteArray messages;
        const auto read = [&] {
            for (int row = 0; row < list.rowCount(); ++row)
                messages += list.index(row, 0).data().toString().toUtf8() + '\n';
        };
        connect(&list, &QAbstractItemModel::rowsInserted, this, read);
        form.press(u"Command3"_s);
        QVERIFY(waitUntil([&form] { return !form.isOpen(); }, 10'000));
        QCOMPARE(world.editor.text().toUtf8(), goldenContent(folder + u"/expected.html"_s));
        QCOMPARE(messages, goldenContent(folder + u"/messages.txt"_s));
    }
};

ZEPHIRA_TEST(TstValidatorGoldenCases)

#include "tst_validatorgoldencases.moc"
