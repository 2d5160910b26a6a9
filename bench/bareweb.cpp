// SPDX-License-Identifier: GPL-3.0-or-later
// bareweb FILE: a window with nothing but a web view that shows the page, painted in the way that starts fastest: the
// least that a preview built on this web engine can cost.
#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include <unistd.h>

int main(int argc, char **argv)
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_QUICK_BACKEND", "software");
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication application(argc, argv);
    QWebEngineProfile profile;
    QMainWindow window;
    auto *view = new QWebEngineView(&window);
    view->setPage(new QWebEnginePage(&profile, view));
    window.setCentralWidget(view);
    window.resize(1200, 800);
    if (argc > 1)
        view->setUrl(QUrl::fromLocalFile(QFile::decodeName(argv[1])));
    window.show();
    view->setFocus();
    return QApplication::exec();
}
