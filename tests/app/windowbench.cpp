// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowbench.h"

#include "app/loadhandler.h"
#include "colour/registerforms.h"
#include "ftp/registerforms.h"
#include "panes/registerforms.h"
#include "settings/registerforms.h"
#include "start/registerforms.h"
#include "support/diskfiles.h"
#include "support/sourcefolder.h"
#include "tags/registerforms.h"
#include "tools/realtidy.h"
#include "tools/registerforms.h"
#include "tools/spelling/registerspelling.h"
#include "views/registerforms.h"
#include "wizards/registerforms.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace zephira {

BrowserView FakeWebViews::makeBrowser(const FileStore &, QWidget *parent)
{
    made.append(u"browser"_s);
    auto *widget = new QWidget(parent);
    widget->setObjectName(u"ww1"_s);
    return {widget, &browser};
}

DesignerView FakeWebViews::makeDesigner(const FileStore &, Prompts &, QWidget *parent)
{
    made.append(u"designer"_s);
    auto *widget = new QWidget(parent);
    widget->setObjectName(u"DHTMLEdit1"_s);
    return {widget, &designer};
}

LivePageView FakeWebViews::makeLivePage(const FileStore &, QWidget *parent)
{
    made.append(u"live"_s);
    auto *widget = new QWidget(parent);
    widget->setObjectName(u"livePageView"_s);
    return {widget, &livePage};
}

WindowBench::WindowBench()
    : recovery(m_folder.path() + u"/recovery"_s, files, clock)
    , configuration(m_folder.path() + u"/app/zephira.ini"_s, configurationCalls)
{
    const QDir source(sourcePath(u"data"_s));
    QDirIterator data(source.path(), QDir::Files, QDirIterator::Subdirectories);
    while (data.hasNext()) {
        const QString file = data.next();
        // The pages of the handbook are many, and only their contents are there.
        if (source.relativeFilePath(file).startsWith(u"help/"))
            continue;
        // Read and written, because QFile::copy() waits for the disk at each file.
        write(u"app/"_s + source.relativeFilePath(file), read(file));
    }
    write(u"app/deps/names.dic"_s, "p\nnbsp\n");
    colour::registerForms(catalogue);
    wizards::registerForms(catalogue);
    wizards::registerImageMap(catalogue, [this](QWidget *parent) -> EditorView {
        auto *editor = new CodeMax({files, recovery, prompts}, parent);
        return {editor, editor};
    });
    panes::registerForms(catalogue);
    start::registerForms(catalogue, recovery);
    ftp::registerForms(catalogue, std::make_shared<FtpClient>(FtpClient{ftpOperations}));
    tags::registerForms(catalogue);
    zephira::settings::registerForms(catalogue, fileTypes, executable);
    zephira::tools::registerForms(catalogue, realTidy);
    zephira::tools::registerSpelling(catalogue, {std::shared_ptr<SpellCheck>(), &spelling.check});
    views::registerForms(
        catalogue,
        [this](QWidget *parent) -> EditorView {
            auto *viewer = new CodeMax({files, recovery, prompts}, parent);
            viewer->setReadOnly(true);
            return {viewer, viewer};
        },
        []() -> Result<PageFetcher *> {
            return Error{Error::Code::Failed, u"no network"_s};
        });
}

WindowBench::~WindowBench() = default;

frmmain &WindowBench::start(const QString &argument)
{
    window = std::make_unique<frmmain>(WindowServices{.files = files,
                                                      .recovery = recovery,
                                                      .configuration = configuration,
                                                      .settings = settings,
                                                      .prompts = prompts,
                                                      .shell = shell,
                                                      .clipboard = clipboard,
                                                      .clock = clock,
                                                      .catalogue = catalogue,
                                                      .webViews = loadWebViews,
                                                      .spelling = spelling.check,
                                                      .appPath = appPath(),
                                                      .iniFile = configuration.file(),
                                                      .executable = executable,
                                                      .endProcess = [this] { ++ended; },
                                                      .hiddenParts = hiddenParts,
                                                      .text = text});
    LoadHandler(*window, argument).run();
    return *window;
}

QString WindowBench::write(const QString &name, const QByteArray &content) const
{
    return putFile(m_folder.path() + u'/' + name, content);
}

QByteArray WindowBench::read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void WindowBench::click(const QString &toolBar, const QString &key) const
{
    const QList<QAction *> all = find<QToolBar>(toolBar)->actions();
    for (QAction *action : all) {
        if (action->objectName() == key) {
            QVERIFY2(action->isEnabled(), qPrintable(key));
            action->trigger();
            return;
        }
    }
    QFAIL(qPrintable(toolBar + u" has no button "_s + key));
}

void WindowBench::click(const QString &toolBar, int position) const
{
    const QList<QAction *> actions = find<QToolBar>(toolBar)->actions();
    QVERIFY(position >= 1 && position <= actions.size());
    QVERIFY(actions[position - 1]->isEnabled());
    actions[position - 1]->trigger();
}

} // namespace zephira
