// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codemax.h"
#include "editor/colouritems.h"
#include "files/recoverycopies.h"
#include "support/fakes.h"
#include "support/formkit.h"
#include "support/palettes.h"
#include "support/testregistry.h"
#include "views/registerforms.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A fetcher that needs no network.
struct FakeFetcher final : PageFetcher {
    Result<FetchedPage> answer = FetchedPage{"<p>caf\xE9</p>\r\n", u"windows-1252"_s};
    QStringList addresses;
    std::function<void()> onFetch;

    Result<FetchedPage> fetch(const QString &address) override
    {
        addresses.append(address);
        if (onFetch)
            onFetch();
        return answer;
    }
};

struct Viewer {
    TestContext world;
    FakeFetcher web;
    std::optional<Error> moduleError;
    LivingForm form;

    Viewer() : form(catalogue(), u"frmwebdisp"_s, world) {}

    FormCatalogue catalogue()
    {
        FormCatalogue forms;
        views::registerForms(
            forms,
            [this](QWidget *parent) {
                return EditorView{new QWidget(parent), &world.editor};
            },
            [this]() -> Result<PageFetcher *> {
                if (moduleError)
                    return *moduleError;
                return &web;
            });
        return forms;
    }

    void choose(const QString &entry) const { form.widget().findChild<QAction *>(entry)->trigger(); }
};

const Question notFound{u"The document you requested could not be found."_s};

} // namespace

class TstFrmWebDisp final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void begin()
    {
        const Viewer viewer;
        QCOMPARE(viewer.form.value(u"frmwebdisp"_s), u"Zephira Web Viewer"_s);
        QCOMPARE(viewer.form.value(u"URL"_s), u"http://"_s);
        QCOMPARE(viewer.world.editor.font.name, u"Courier New"_s);
        QCOMPARE(viewer.form.focus(), u"URL"_s);
        QVERIFY(viewer.form.get<QWidget>(u"RichTextBox1"_s).isVisible());
    }

    void grabSource()
    {
        Viewer viewer;
        viewer.form.type(u"URL"_s, u"http://example.org/a"_s);
        bool wasEnabled = true;
        viewer.web.onFetch = [&] { wasEnabled = viewer.form.get<QPushButton>(u"Command1"_s).isEnabled(); };
        viewer.form.key(Qt::Key_Return);
        QCOMPARE(viewer.web.addresses, QStringList{u"http://example.org/a"_s});
        QCOMPARE(viewer.world.editor.text(), u"<p>café</p>\r\n"_s);
        QCOMPARE(viewer.form.value(u"frmwebdisp"_s), u"Zephira Web Viewer - http://example.org/a"_s);
        QVERIFY(!wasEnabled);
        QVERIFY(viewer.form.get<QPushButton>(u"Command1"_s).isEnabled());
        QVERIFY(viewer.form.isOpen());
    }

    /// The source is shown by the editing control, whose shipped colours go along with the desktop, while those that
    /// the user chose stay.
    void theSourceIsDarkOnADarkDesktop()
    {
        const QPalette before = QApplication::palette();
        const auto restore = qScopeGuard([&] { QApplication::setPalette(before); });
        Viewer viewer;
        MemoryFileStore files;
        FakeClock clock;
        QTemporaryDir folder;
        RecoveryCopies recovery(folder.path(), files, clock);
        CodeMax *source = nullptr;
        FormCatalogue forms;
        views::registerForms(
            forms,
            [&](QWidget *parent) -> EditorView {
                source = new CodeMax({files, recovery, viewer.world.prompts}, parent);
                return {source, source};
            },
            [&]() -> Result<PageFetcher *> { return &viewer.web; });
        LivingForm form(forms, u"frmwebdisp"_s, viewer.world);
        form.type(u"URL"_s, u"http://example.org/a"_s);
        form.key(Qt::Key_Return);
        QVERIFY(source && source->text().contains(u"<p>"_s));
        const auto paper = [&] {
            const QImage picture = source->viewport()->grab().toImage();
            return picture.pixelColor(picture.width() - 4, picture.height() - 4);
        };
        const auto colourOf = [&](int style) {
            return static_cast<quint32>(source->engine().send(QsciScintillaBase::SCI_STYLEGETFORE, style));
        };
        const auto text = [&] { return colourOf(0); };
        const auto keyword = [&] { return colourOf(2); };
        source->setColor(KeywordFore, 0x123456);
        QCOMPARE(paper(), QColor(Qt::white));
        QCOMPARE(keyword(), 0x123456u);
        QApplication::setPalette(desktopPalettes()[2].palette);
        QTRY_VERIFY2(paper().lightness() < 60, qPrintable(paper().name()));
        QCOMPARE(text(), colourItemTable[TextFore].dark);
        QCOMPARE(keyword(), 0x123456u);
        source->setColor(TextFore, 0x0000ff);
        QCOMPARE(text(), 0x0000ffu);
        QCOMPARE(paper(), QColor(Qt::white));
        source->setColor(TextFore, shippedColours[TextFore]);
        QApplication::setPalette(before);
        QTRY_COMPARE(paper(), QColor(Qt::white));
        QCOMPARE(text(), shippedColours[TextFore]);
        QCOMPARE(keyword(), 0x123456u);
        QCOMPARE(source->color(KeywordFore), 0x123456u);
    }

    void theButtonKeepsTheKeyboard()
    {
        Viewer viewer;
        viewer.form.get<QPushButton>(u"Command1"_s).setFocus();
        viewer.form.key(Qt::Key_Space);
        QCOMPARE(viewer.web.addresses.size(), 1);
        QCOMPARE(viewer.form.focus(), u"Command1"_s);
    }

    void clicksFromMeanwhileAreLost()
    {
        Viewer viewer;
        auto &button = viewer.form.get<QPushButton>(u"Command1"_s);
        viewer.web.onFetch = [&] { QMetaObject::invokeMethod(&button, &QPushButton::click, Qt::QueuedConnection); };
        button.click();
        QCoreApplication::processEvents();
        QCOMPARE(viewer.web.addresses.size(), 1);
        QVERIFY(button.isEnabled());
    }

    void whatCannotBeHadLeavesTheOldText_data()
    {
        QTest::addColumn<bool>("module");
        QTest::newRow("the page") << false;
        QTest::newRow("the module") << true;
    }

    void whatCannotBeHadLeavesTheOldText()
    {
        QFETCH(bool, module);
        Viewer viewer;
        viewer.form.press(u"Command1"_s);
        const QString before = viewer.world.editor.text();
        viewer.web.answer = Error{Error::Code::NotFound, u"404"_s};
        if (module)
            viewer.moduleError = Error{Error::Code::Failed, u"missing"_s};
        viewer.world.prompts.expect(notFound, Answer::Ok);
        viewer.form.press(u"Command1"_s);
        QCOMPARE(viewer.world.editor.text(), before);
        QVERIFY(viewer.form.get<QPushButton>(u"Command1"_s).isEnabled());
    }

    void viewPage()
    {
        Viewer viewer;
        viewer.form.type(u"URL"_s, u"http://example.org/"_s);
        viewer.form.press(u"Command2"_s);
        viewer.world.shell.failure = Error{Error::Code::Failed, u"no browser"_s};
        viewer.form.press(u"Command2"_s); // There is no message.
        QCOMPARE(viewer.world.shell.opened, (QStringList{u"http://example.org/"_s, u"http://example.org/"_s}));
        QVERIFY(viewer.web.addresses.isEmpty());
    }

    void copySource()
    {
        Viewer viewer;
        viewer.form.press(u"Command1"_s);
        viewer.world.prompts.expectTell(u"The source code has been placed on the clipboard"_s);
        viewer.choose(u"mnucopy"_s);
        QVERIFY(viewer.world.editor.commands
                == std::vector<FakeEditor::ExecutedCommand>({{numberOf(EditorCommand::SelectAll), -1}}));
        QVERIFY(viewer.world.editor.calls.contains(u"copy"_s));
    }

    void saveAs()
    {
        Viewer viewer;
        viewer.form.press(u"Command1"_s);
        const FileRequest request{.filter = u"Text Files (*.txt)|*.txt|HTML Files (*.html)|*.html|"_s, .saving = true};
        viewer.world.prompts.expectFile(request, u"/site/page.txt"_s);
        viewer.choose(u"filesaveas"_s);
        QCOMPARE(viewer.world.files.contents[u"/site/page.txt"_s], QByteArray("<p>caf\xC3\xA9</p>\r\n"));
        viewer.world.prompts.expectFile(request, std::nullopt);
        viewer.choose(u"filesaveas"_s);
        QCOMPARE(viewer.world.files.log.size(), 1);
        viewer.world.files.unwritable[u"/full"_s] = {Error::Code::Unwritable, u"The disk is full."_s};
        viewer.world.prompts.expectFile(request, u"/full"_s);
        viewer.world.prompts.expectTell(u"The disk is full."_s, {}, Question::Icon::Exclamation);
        viewer.choose(u"filesaveas"_s);
    }

    void theSourceFillsTheForm()
    {
        const Viewer viewer;
        viewer.form.widget().resize(900, 700);
        QTRY_VERIFY(viewer.form.get<QWidget>(u"RichTextBox1"_s).height() > 550);
        QCOMPARE(viewer.form.get<QWidget>(u"RichTextBox1"_s).width(), 900);
    }
};

ZEPHIRA_TEST(TstFrmWebDisp)
#include "tst_frmwebdisp.moc"
