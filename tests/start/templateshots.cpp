// SPDX-License-Identifier: GPL-3.0-or-later
// templateshots DIR     saves a picture of each template of the start dialog: DIR/template-faq.html.png … A page is shown
//                       as a browser shows it, also on a phone (DIR/template-faq.html-phone.png …), a style sheet on the
//                       page of the preview, and a script as in the code view.
#include "core/clock.h"
#include "core/languages.h"
#include "desktop/webenginestart.h"
#include "editor/codemax.h"
#include "editor/codemaxglobals.h"
#include "files/diskfilestore.h"
#include "files/recoverycopies.h"
#include "start/templates.h"
#include "support/scriptedprompts.h"
#include "support/sourcefolder.h"
#include "syntax/languagedefinition.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <QWebEngineView>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr QSize desktopSize(900, 640);
constexpr QSize phoneSize(390, 700);
/// In milliseconds.
constexpr int patience = 20'000;
constexpr int timeToPaint = 300;

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool writeText(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0;
}

bool save(QWidget &widget, const QString &path)
{
    if (widget.grab().save(path))
        return true;
    QTextStream(stderr) << path << " can't be written\n";
    return false;
}

/// Shows web pages from a folder of their own, with what they need around them.
class Pages
{
public:
    explicit Pages(const QString &templates) : m_templates(templates) {}

    bool takePicture(const TemplateButton &button, QSize size, const QString &picture)
    {
        const QString page = button.language == language::StyleSheets ? styledPage(button) : ownPage(button);
        QWebEngineView view;
        view.resize(size);
        view.show();
        QEventLoop loading;
        bool loaded = false;
        QObject::connect(&view, &QWebEngineView::loadFinished, &loading, [&](bool ok) {
            loaded = ok;
            loading.quit();
        });
        QTimer::singleShot(patience, &loading, &QEventLoop::quit);
        view.load(QUrl::fromLocalFile(page));
        loading.exec();
        if (!loaded) {
            QTextStream(stderr) << button.file << " can't be shown\n";
            return false;
        }
        QTest::qWait(timeToPaint);
        return save(view, picture);
    }

private:
    /// The template itself; frames get pages that say what they are.
    QString ownPage(const TemplateButton &button)
    {
        const QString text = readText(m_templates + button.file.toString());
        static const QRegularExpression frame(u"<frame name=\"[a-z]+\" src=\"([^\"]+)\" title=\"([^\"]+)\">"_s);
        QRegularExpressionMatchIterator frames = frame.globalMatch(text);
        while (frames.hasNext()) {
            const QRegularExpressionMatch found = frames.next();
            writeText(m_folder.filePath(found.captured(1)),
                      u"<!DOCTYPE html><title>x</title><body style='font-family: sans-serif'><p>%1</p>"_s.arg(
                          found.captured(2)));
        }
        const QString page = m_folder.filePath(button.file.toString());
        writeText(page, text);
        return page;
    }

    /// The sample page of the preview, which takes its looks from "style.css".
    QString styledPage(const TemplateButton &button)
    {
        const QString page = m_folder.filePath(u"styled.html"_s);
        writeText(page, readText(sourcePath(u"data/deps/CSSpreview.html"_s)));
        writeText(m_folder.filePath(u"style.css"_s), readText(m_templates + button.file.toString()));
        return page;
    }

    const QString m_templates;
    const QTemporaryDir m_folder;
};

bool takeCodePicture(const TemplateButton &button, const QString &templates, const QString &picture)
{
    DiskFileStore files;
    SystemClock clock;
    RecoveryCopies recovery(QDir::tempPath() + u"/zephira-forms"_s, files, clock);
    ScriptedPrompts prompts;
    CodeMax code({files, recovery, prompts});
    code.globals().RegisterLanguage(languageRow(language::Perl)->editorLanguage.toString(), perlLanguage());
    code.setText(readText(templates + button.file.toString()));
    code.setLanguage(languageRow(button.language)->editorLanguage.toString());
    code.resize(desktopSize);
    code.show();
    QTest::qWait(timeToPaint);
    return save(code, picture);
}

bool takePictures(const QDir &folder)
{
    const QString templates = sourcePath(u"data/templates/"_s);
    Pages pages(templates);
    for (const TemplateButton &button : templateButtons()) {
        const QString name = folder.filePath(u"template-"_s + button.file.toString());
        if (button.file.isEmpty())
            continue;
        const bool isPage = button.language == language::Html || button.language == language::StyleSheets;
        const bool onPhone = button.language == language::Html && button.page != TemplatePage::Frames;
        if (isPage ? !pages.takePicture(button, desktopSize, name + u".png"_s)
                   : !takeCodePicture(button, templates, name + u".png"_s))
            return false;
        if (onPhone && !pages.takePicture(button, phoneSize, name + u"-phone.png"_s))
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
        QTextStream(stderr) << "usage: templateshots DIR\n";
        return 2;
    }
    return takePictures(QDir(arguments[1])) ? 0 : 1;
}
