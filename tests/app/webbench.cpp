// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/webbench.h"

#include "desktop/module.h"
#include "support/eventwait.h"

using namespace Qt::StringLiterals;

namespace zephira {

WebBench::WebBench(const QString &name, const QByteArray &content)
{
    loadWebViews = [] { return loadModuleAs<WebViews>(QStringLiteral(ZEPHIRA_WEB_MODULE)); };
    if (!name.isEmpty())
        file = write(u"site/"_s + name, content);
    start(name.isEmpty() ? u"/nodialog"_s : file);
    window->show();
    [this] { QVERIFY(QTest::qWaitForWindowExposed(window.get())); }();
}

QString WebBench::pageTitle() const
{
    const QList<QWidget *> parts = find<QWidget>(u"ww1"_s)->findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        if (part->inherits("QWebEngineView"))
            return part->property("title").toString();
    }
    return {};
}

bool WebBench::showsPage(const QString &title) const
{
    return waitUntil([&] { return pageTitle() == title; }, patience);
}

bool WebBench::preview(const QString &title)
{
    select(2);
    return showsPage(title);
}

bool WebBench::design()
{
    select(3);
    // No command is enabled before the page can be edited.
    return waitUntil([&] { return status(DesignerCommand::SelectAll) >= DesignerStatus::Enabled; }, patience);
}

void WebBench::paste(const QString &markup) const
{
    QMetaObject::invokeMethod(&designer(), "pasteHTML", Q_ARG(QString, markup));
}

void WebBench::run(DesignerCommand command, const QVariant &argument) const
{
    QVariant result;
    QMetaObject::invokeMethod(&designer(), "ExecCommand", Q_RETURN_ARG(QVariant, result),
                              Q_ARG(int, static_cast<int>(command)), Q_ARG(int, 2), Q_ARG(QVariant, argument));
}

int WebBench::status(DesignerCommand command) const
{
    int status = -1;
    QMetaObject::invokeMethod(&designer(), "QueryStatus", Q_RETURN_ARG(int, status),
                              Q_ARG(int, static_cast<int>(command)));
    return status;
}

QPointF WebBench::scrollOf(const QString &view) const
{
    const QList<QObject *> parts = find<QWidget>(view)->findChildren<QObject *>();
    for (const QObject *part : parts) {
        if (part->inherits("QWebEnginePage"))
            return part->property("scrollPosition").toPointF();
    }
    return {};
}

QWidget *WebBench::keyboardOf(const QString &view) const
{
    QWidget *target = find<QWidget>(view);
    while (target->focusProxy())
        target = target->focusProxy();
    return target;
}

} // namespace zephira
