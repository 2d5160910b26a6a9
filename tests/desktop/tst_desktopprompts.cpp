// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktopprompts.h"
#include "support/testregistry.h"
#include "widgets/qtvalues.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPushButton>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <array>
#include <climits>

#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace zephira;

using Icon = Question::Icon;
using Buttons = Question::Buttons;

class TstDesktopPrompts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void messageBox_data();
    void messageBox();
    void eachButtonAnswers_data();
    void eachButtonAnswers();
    void messageKeepsItsText_data();
    void messageKeepsItsText();
    void ownerDiesWhileABoxIsUp();
    void boxBelongsToTheModalForm();
    void input();
    void inputCancelled();
    void inputOfNothing();
    void inputShowsMarkupAsText();
    void openFile();
    void openFileCancelled();
    void listedFilesAreNotRead();
    void savedNameTakesTheSuffix_data();
    void savedNameTakesTheSuffix();
    void aNameWithoutASuffixStays();
    void noAndCancelHavePicturesOfTheirOwn();
    void savingDoesNotAskAboutOverwriting();
    void folder();
    void colour();
    void colourCancelled();
    void colourNumbers();
    void font();
    void fontValues();

private:
    /// Calls the action while the next dialog is open, and fails the test if the dialog isn't of the given class.
    template<typename Dialog>
    void whileUp(std::function<void(Dialog &)> action)
    {
        QTimer::singleShot(0, this, [this, action = std::move(action)] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            m_wasUp = dialog != nullptr;
            if (dialog)
                action(*dialog);
            if (QWidget *left = QApplication::activeModalWidget(); left && !dialog)
                left->close();
        });
    }

    bool m_wasUp = false;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWidget> m_owner;
    std::unique_ptr<DesktopPrompts> m_prompts;
};

void TstDesktopPrompts::init()
{
    m_wasUp = false;
    m_folder = std::make_unique<QTemporaryDir>();
    m_owner = std::make_unique<QWidget>();
    m_prompts = std::make_unique<DesktopPrompts>(m_owner.get(), DesktopPrompts::Dialogs::OfQt);
}

void TstDesktopPrompts::cleanup()
{
    QVERIFY(!QApplication::activeModalWidget());
}

void TstDesktopPrompts::messageBox_data()
{
    QTest::addColumn<Question>("question");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<Answer>("byReturn");
    QTest::addColumn<Answer>("byEscape");
    QTest::newRow("note") << Question{u"Hello"_s} << u"Zephira"_s << QMessageBox::NoIcon << QStringList{u"OK"_s}
                          << Answer::Ok << Answer::Ok;
    QTest::newRow("information") << Question{u"Hello"_s, u"UNDO"_s, Icon::Information} << u"UNDO"_s
                                 << QMessageBox::Information << QStringList{u"OK"_s} << Answer::Ok << Answer::Ok;
    QTest::newRow("exclamation") << Question{u"Hello"_s, {}, Icon::Exclamation, Buttons::OkCancel} << u"Zephira"_s
                                 << QMessageBox::Warning << QStringList{u"OK"_s, u"Cancel"_s} << Answer::Ok
                                 << Answer::Cancel;
    QTest::newRow("critical") << Question{u"Hello"_s, {}, Icon::Critical, Buttons::YesNo} << u"Zephira"_s
                              << QMessageBox::Critical << QStringList{u"Yes"_s, u"No"_s} << Answer::Yes << Answer::No;
    QTest::newRow("question") << Question{u"Hello"_s, u"Overwrite?"_s, Icon::Question, Buttons::YesNoCancel}
                              << u"Overwrite?"_s << QMessageBox::Question << QStringList{u"Yes"_s, u"No"_s, u"Cancel"_s}
                              << Answer::Yes << Answer::Cancel;
}

void TstDesktopPrompts::messageBox()
{
    QFETCH(Question, question);
    QFETCH(QString, title);
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(QStringList, buttons);
    QFETCH(Answer, byReturn);
    QFETCH(Answer, byEscape);
    for (const auto &[key, expected] : {std::pair(Qt::Key_Return, byReturn), std::pair(Qt::Key_Escape, byEscape)}) {
        whileUp<QMessageBox>([&, key = key](QMessageBox &box) {
            QCOMPARE(box.windowTitle(), title);
            QCOMPARE(box.text(), question.text);
            QCOMPARE(box.icon(), icon);
            QStringList captions;
            const QList<QAbstractButton *> all = box.buttons();
            for (const QAbstractButton *button : all)
                captions.append(button->text().remove(u'&'));
            captions.sort();
            buttons.sort();
            QCOMPARE(captions, buttons);
            QTest::keyClick(&box, key);
        });
        QCOMPARE(m_prompts->ask(question), expected);
        QVERIFY(m_wasUp);
    }
}

void TstDesktopPrompts::eachButtonAnswers_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<QMessageBox::StandardButton>("button");
    QTest::addColumn<Answer>("answer");
    QTest::newRow("ok") << Buttons::Ok << QMessageBox::Ok << Answer::Ok;
    QTest::newRow("cancel") << Buttons::OkCancel << QMessageBox::Cancel << Answer::Cancel;
    QTest::newRow("yes") << Buttons::YesNo << QMessageBox::Yes << Answer::Yes;
    QTest::newRow("no") << Buttons::YesNoCancel << QMessageBox::No << Answer::No;
}

void TstDesktopPrompts::eachButtonAnswers()
{
    QFETCH(Buttons, buttons);
    QFETCH(QMessageBox::StandardButton, button);
    QFETCH(Answer, answer);
    whileUp<QMessageBox>([&](QMessageBox &box) { box.button(button)->click(); });
    QCOMPARE(m_prompts->ask({u"?"_s, {}, Icon::None, buttons}), answer);
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::messageKeepsItsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << u"<b>Insert &amp; close</b>"_s;
    QTest::newRow("line feeds") << u"Document: x\n\nThis document has been modified.\nDo you wish to save?"_s;
    QTest::newRow("carriage returns") << u"An error has occured.\r\nFile not found\r\nThe routine"_s;
}

void TstDesktopPrompts::messageKeepsItsText()
{
    QFETCH(QString, text);
    whileUp<QMessageBox>([&](QMessageBox &box) {
        QCOMPARE(box.textFormat(), Qt::PlainText);
        QCOMPARE(box.text(), text);
        // As many lines are drawn as the text has.
        const auto *label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
        QVERIFY(label);
        const int lines = static_cast<int>(text.count(u'\n')) + 1;
        QVERIFY(label->sizeHint().height() >= lines * label->fontMetrics().height());
        QVERIFY(label->sizeHint().height() < (lines + 1) * label->fontMetrics().lineSpacing());
        box.close();
    });
    m_prompts->ask({text});
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::ownerDiesWhileABoxIsUp()
{
    whileUp<QMessageBox>([&](QMessageBox &) { m_owner.reset(); });
    QCOMPARE(m_prompts->ask({u"?"_s, {}, Icon::None, Buttons::YesNoCancel}), Answer::Cancel);
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::boxBelongsToTheModalForm()
{
    QDialog form(m_owner.get());
    QWidget *owner = nullptr;
    form.open();
    whileUp<QMessageBox>([&](QMessageBox &box) {
        owner = box.parentWidget();
        box.close();
    });
    m_prompts->tell(u"Hello"_s);
    QCOMPARE(owner, &form);
}

void TstDesktopPrompts::input()
{
    whileUp<QInputDialog>([&](QInputDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Add Entry - Code"_s);
        QCOMPARE(dialog.labelText(), u"What is the code you wish to add?"_s);
        QCOMPARE(dialog.textValue(), u"<p>"_s);
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), u"<br>"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const auto answer = m_prompts->input({u"What is the code you wish to add?"_s, u"Add Entry - Code"_s, u"<p>"_s});
    QVERIFY(m_wasUp);
    QCOMPARE(answer, std::optional(u"<br>"_s));
}

void TstDesktopPrompts::inputCancelled()
{
    whileUp<QInputDialog>([&](QInputDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Zephira"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QVERIFY(!m_prompts->input({u"?"_s, {}, u"kept"_s}).has_value());
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::inputOfNothing()
{
    whileUp<QInputDialog>([&](QInputDialog &dialog) { dialog.accept(); });
    QCOMPARE(m_prompts->input({u"?"_s}), std::optional(u""_s));
}

void TstDesktopPrompts::inputShowsMarkupAsText()
{
    whileUp<QInputDialog>([&](QInputDialog &dialog) {
        const auto labels = dialog.findChildren<QLabel *>();
        QVERIFY(!labels.isEmpty());
        for (const QLabel *label : labels)
            QCOMPARE(label->textFormat(), Qt::PlainText);
        dialog.reject();
    });
    QVERIFY(!m_prompts->input({u"What goes into <b></b>?"_s}).has_value());
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::openFile()
{
    const QString path = m_folder->filePath(u"page.HTML"_s);
    QVERIFY(QFile(path).open(QIODevice::WriteOnly));
    whileUp<QFileDialog>([&](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Open a document..."_s);
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
        QCOMPARE(dialog.nameFilters(), (QStringList{u"Html Files (*.html *.htm)"_s, u"All Files (*)"_s}));
        QCOMPARE(dialog.directory().path(), m_folder->path());
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"page.HTML"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const auto answer =
        m_prompts->file({u"Open a document..."_s, u"Html Files|*.html;*.htm|All Files|*.*"_s, m_folder->path(), false});
    QVERIFY(m_wasUp);
    QCOMPARE(answer, std::optional(path));
}

/// What is listed may be the kernel's messages, or on a server that doesn't answer: who reads it waits for ever.
void TstDesktopPrompts::listedFilesAreNotRead()
{
    const QString path = m_folder->filePath(u"messages"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("%PDF-1.4\n");
    file.close();
    const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    const auto endWatch = qScopeGuard([watch] { ::close(watch); });
    QVERIFY(inotify_add_watch(watch, QFile::encodeName(path).constData(), IN_ACCESS) >= 0);
    QString type;
    whileUp<QFileDialog>([&](QFileDialog &dialog) {
        const auto *model = dialog.findChild<QFileSystemModel *>();
        const QModelIndex place = model->index(path, 2);
        QTRY_VERIFY(!model->type(place).isEmpty() && model->rowCount(place.parent()) == 1);
        type = model->type(place);
        dialog.reject();
    });
    QVERIFY(!m_prompts->file({{}, u"All Files|*"_s, m_folder->path(), false}));
    QVERIFY(m_wasUp);
    std::array<char, sizeof(inotify_event) + NAME_MAX + 1> event{};
    QCOMPARE(::read(watch, event.data(), event.size()), -1);
    QCOMPARE(type, QMimeDatabase().mimeTypeForName(u"application/octet-stream"_s).comment());
}

void TstDesktopPrompts::openFileCancelled()
{
    whileUp<QFileDialog>([&](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Open"_s);
        dialog.reject();
    });
    QVERIFY(!m_prompts->file({{}, u"All Files|*.*"_s, u"Project Path"_s, false}).has_value());
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::savedNameTakesTheSuffix_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("chosenFilter");
    QTest::addColumn<QString>("saved");
    QTest::newRow("first filter") << u"page"_s << u""_s << u"page.html"_s;
    QTest::newRow("another filter") << u"page"_s << u"ASP File (*.asp)"_s << u"page.asp"_s;
    QTest::newRow("all files") << u"page"_s << u"All Files (*)"_s << u"page"_s;
    QTest::newRow("own extension") << u"page.php"_s << u""_s << u"page.php"_s;
}

void TstDesktopPrompts::savedNameTakesTheSuffix()
{
    QFETCH(QString, typed);
    QFETCH(QString, chosenFilter);
    QFETCH(QString, saved);
    whileUp<QFileDialog>([&](QFileDialog &dialog) {
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        if (!chosenFilter.isEmpty())
            dialog.selectNameFilter(chosenFilter);
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(typed);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const auto answer = m_prompts->file(
        {u"Save a document..."_s, u"HTML Files|*.html|ASP File|*.asp|All Files|*.*"_s, m_folder->path(), true});
    QVERIFY(m_wasUp);
    QCOMPARE(answer, std::optional(m_folder->filePath(saved)));
}

/// The name stays if the document has no suffix, and if a file of that name exists.
void TstDesktopPrompts::aNameWithoutASuffixStays()
{
    QVERIFY(QFile(m_folder->filePath(u"README"_s)).open(QIODevice::WriteOnly));
    for (const QString &name : {u"Makefile"_s, u"README"_s}) {
        whileUp<QFileDialog>([&](QFileDialog &dialog) {
            dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(name);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        const auto answer = m_prompts->file(
            {{}, u"Text Files|*.txt|All Files|*.*"_s, m_folder->path(), true, u"/elsewhere/Makefile"_s});
        QCOMPARE(answer, std::optional(m_folder->filePath(name)));
    }
}

/// Two different answers must not look alike.
void TstDesktopPrompts::noAndCancelHavePicturesOfTheirOwn()
{
    QIcon::setFallbackSearchPaths({u"/usr/share/icons/breeze/actions/16"_s});
    QIcon::setThemeName(u"breeze"_s);
    whileUp<QMessageBox>([](QMessageBox &box) {
        const QImage no = box.button(QMessageBox::No)->icon().pixmap(16, 16).toImage();
        const QImage cancel = box.button(QMessageBox::Cancel)->icon().pixmap(16, 16).toImage();
        QVERIFY(!no.isNull());
        QVERIFY(no != cancel);
        box.reject();
    });
    m_prompts->ask({u"Really?"_s, {}, Question::Icon::Question, Question::Buttons::YesNoCancel});
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::savingDoesNotAskAboutOverwriting()
{
    const QString path = m_folder->filePath(u"page.html"_s);
    QVERIFY(QFile(path).open(QIODevice::WriteOnly));
    whileUp<QFileDialog>([&](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(u"page.html"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(m_prompts->file({{}, u"HTML Files|*.html"_s, m_folder->path(), true}), std::optional(path));
}

void TstDesktopPrompts::folder()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"site"_s));
    whileUp<QFileDialog>([&](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Choose a folder"_s);
        QCOMPARE(dialog.fileMode(), QFileDialog::Directory);
        dialog.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(m_folder->filePath(u"site"_s));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QCOMPARE(m_prompts->folder({}, m_folder->path()), std::optional(m_folder->filePath(u"site"_s)));
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::colour()
{
    whileUp<QColorDialog>([&](QColorDialog &dialog) {
        QCOMPARE(dialog.currentColor(), QColor(0x11, 0x22, 0x33));
        dialog.setCurrentColor(QColor(0xff, 0x80, 0x01));
        dialog.accept();
    });
    QCOMPARE(m_prompts->colour(0x332211), std::optional<quint32>(0x0180ff));
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::colourCancelled()
{
    whileUp<QColorDialog>([&](QColorDialog &dialog) { dialog.reject(); });
    QVERIFY(!m_prompts->colour(0).has_value());
    QVERIFY(m_wasUp);
}

void TstDesktopPrompts::colourNumbers()
{
    QCOMPARE(toQColor(0x0000ff), QColor(Qt::red));
    QCOMPARE(toQColor(0xff0000), QColor(Qt::blue));
    QCOMPARE(toQColor(0xff00ff00), QColor(Qt::green));
    for (const quint32 number : {0x000000U, 0x123456U, 0xffffffU})
        QCOMPARE(toColourNumber(toQColor(number)), number);
}

void TstDesktopPrompts::font()
{
    whileUp<QFontDialog>([&](QFontDialog &dialog) {
        QCOMPARE(dialog.currentFont().pointSizeF(), 12.0);
        dialog.setCurrentFont(toQFont({dialog.currentFont().family(), 12, true}));
        dialog.accept();
    });
    const auto answer = m_prompts->font({u"Liberation Mono"_s, 12});
    QVERIFY(m_wasUp && answer);
    QVERIFY(answer->bold);
    QCOMPARE(answer->size, 12.0);
}

void TstDesktopPrompts::fontValues()
{
    const FontChoice choice{u"Liberation Mono"_s, 10.5, true, true, true, true};
    QCOMPARE(toFontChoice(toQFont(choice)), choice);
    const FontChoice plain{u"Liberation Mono"_s, 10};
    QCOMPARE(toFontChoice(toQFont(plain)), plain);
}

ZEPHIRA_TEST(TstDesktopPrompts)
#include "tst_desktopprompts.moc"
