// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/goldencases.h"
#include "support/testregistry.h"
#include "tools/linklist.h"
#include "tools/registerforms.h"

#include <QFileInfo>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

FormCatalogue forms()
{
    FormCatalogue catalogue;
    tools::registerForms(catalogue, {});
    return catalogue;
}

} // namespace

/// The weight, the links, and the two converters: what goes in and what comes out, in one folder per case.
class TstToolsGoldenCases final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// page.html is the document, expected.txt has the five captions and then the images.
    void weight_data() { addGoldenCases(u"weight"_s); }
    void weight()
    {
        QFETCH(QString, folder);
        const QByteArray page = goldenContent(folder + u"/page.html"_s);
        TestContext world;
        world.files.contents[u"/app/ldtemp.html"_s] = page;
        world.editor.setText(QString::fromUtf8(page));
        const LivingForm form(forms(), u"frmDocSize"_s, world);
        QString shown;
        for (const QString &caption : {u"DocSize"_s, u"Modem14"_s, u"Modem28"_s, u"Modem56"_s, u"ModemLAN"_s})
            shown += form.value(caption) + u'\n';
        const QAbstractItemModel &list = *form.get<QTreeView>(u"lstlinks"_s).model();
        for (int row = 0; row < list.rowCount(); ++row)
            shown += list.index(row, 0).data().toString() + u'\n';
        QCOMPARE(shown.toUtf8(), goldenContent(folder + u"/expected.txt"_s));
    }

    /// page.html is the file, expected.txt has the list, and expected.html is the page of links.
    void links_data() { addGoldenCases(u"links"_s); }
    void links()
    {
        QFETCH(QString, folder);
        TestContext world;
        world.files.contents[u"/page.html"_s] = goldenContent(folder + u"/page.html"_s);
        const LivingForm form(forms(), u"frmlinkextract"_s, world);
        world.prompts.expectFile(
            {u"Select File"_s, u"HTML Pages (*.html, *.htm)|*.html;*.htm|All Files|*.*"_s, {}, false, {}},
            u"/page.html"_s);
        form.press(u"cmdOnE"_s);
        world.prompts.expectFile({u"Save File"_s, u"HTML File|*.html|HTM File|*.htm|All Files|*.*"_s, u"/"_s, true, {}},
                                 u"/links.html"_s);
        form.press(u"cmdSave"_s);
        QString shown;
        const QStringList rows = form.get<LinkList>(u"lstURL"_s).rows();
        for (const QString &row : rows)
            shown += row + u'\n';
        QCOMPARE(shown.toUtf8(), goldenContent(folder + u"/expected.txt"_s));
        QCOMPARE(world.files.contents[u"/links.html"_s], goldenContent(folder + u"/expected.html"_s));
    }

    /// text.txt is the file, fields.txt says what is filled in, and expected.html is the page.
    void textPage_data() { addGoldenCases(u"textpage"_s); }
    void textPage()
    {
        QFETCH(QString, folder);
        TestContext world;
        world.files.contents[u"/text.txt"_s] = goldenContent(folder + u"/text.txt"_s);
        const LivingForm form(forms(), u"frmthcon"_s, world);
        form.set(u"Text1"_s, u"/text.txt"_s);
        form.set(u"Text2"_s, u"/page.html"_s);
        const QStringList steps = goldenLines(folder + u"/fields.txt"_s);
        for (const QString &step : steps)
            playGoldenStep(form, step);
        world.prompts.expect({u"Do you wish to open this file?"_s, {}, Question::Icon::None, Question::Buttons::YesNo},
                             Answer::No);
        form.press(u"Command1"_s);
        QCOMPARE(world.files.contents[u"/page.html"_s], goldenContent(folder + u"/expected.html"_s));
    }

    /// rich.html is what stands in the rich text box, expected.html the markup, with the line ends of this file.
    void richText_data() { addGoldenCases(u"richtext"_s); }
    void richText()
    {
        QFETCH(QString, folder);
        TestContext world;
        const LivingForm form(forms(), u"frmtextthtml"_s, world);
        // Without a case of its own the box holds the demonstration text.
        if (const QString rich = folder + u"/rich.html"_s; QFileInfo::exists(rich))
            form.get<QTextEdit>(u"rtbRichText"_s).setHtml(QString::fromUtf8(goldenContent(rich)));
        form.press(u"cmdConvert"_s);
        const QString markup = form.get<QWidget>(u"txtHTML"_s).property("plainText").toString();
        QCOMPARE(markup.toUtf8() + '\n', goldenContent(folder + u"/expected.html"_s));
    }
};

ZEPHIRA_TEST(TstToolsGoldenCases)

#include "tst_goldencases.moc"
