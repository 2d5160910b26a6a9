// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/designer/designerbench.h"

#include "support/diskfiles.h"
#include "support/eventwait.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTimer>
#include <QWebEngineScript>
#include <QWebEngineView>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Sets the selection that the markers in a page's text describe. They are located in a copy of the page, because the
/// designer would take their removal for a change.
const QString setSelection = uR"js((html => {
    const copy = new DOMParser().parseFromString(html, 'text/html').body;
    const walker = document.createTreeWalker(copy, NodeFilter.SHOW_TEXT);
    const texts = [];
    while (walker.nextNode())
        texts.push(walker.currentNode);
    const places = {};
    for (const text of texts) {
        for (let i; (i = text.data.search(/[\[\]|{]/)) >= 0;) {
            places[text.data[i]] = [text, i];
            text.deleteData(i, 1);
        }
    }
    // A text node that consisted of a marker alone isn't in the page.
    for (const text of texts.filter(each => each.length === 0)) {
        for (const sign in places) {
            if (places[sign][0] === text)
                places[sign] = [text.parentNode, [...text.parentNode.childNodes].indexOf(text)];
        }
        text.remove();
    }
    const inPage = ([node, offset]) => {
        const way = [];
        for (; node !== copy; node = node.parentNode)
            way.unshift([...node.parentNode.childNodes].indexOf(node));
        return [way.reduce((parent, index) => parent.childNodes[index], document.body), offset];
    };
    const selection = getSelection();
    const element = places['{'] && inPage(places['{']);
    if (element) {
        const [node, offset] = element;
        const whole = node.nodeType === Node.TEXT_NODE ? node.nextSibling : node.childNodes[offset];
        const range = new Range();
        range.selectNode(whole);
        selection.removeAllRanges();
        selection.addRange(range);
    } else if (places['[']) {
        selection.setBaseAndExtent(...inPage(places['[']), ...inPage(places[']']));
    } else if (places['|']) {
        selection.collapse(...inPage(places['|']));
    }
}))js"_s;

/// The body with markers at the ends of the selection. The page itself isn't changed: the ends are located in a copy by
/// their paths from the root.
const QString showSelection = uR"js((() => {
    const copy = document.body.cloneNode(true);
    const selection = getSelection();
    if (selection.rangeCount > 0) {
        const range = selection.getRangeAt(0);
        const find = node => {
            const way = [];
            for (; node !== document.body; node = node.parentNode) {
                if (!node || !node.parentNode)
                    return null;
                way.unshift([...node.parentNode.childNodes].indexOf(node));
            }
            return way.reduce((parent, index) => parent.childNodes[index], copy);
        };
        const put = (node, offset, sign) => {
            if (!node)
                return;
            if (node.nodeType === Node.TEXT_NODE)
                node.insertData(offset, sign);
            else
                node.insertBefore(new Text(sign), node.childNodes[offset] ?? null);
        };
        const start = find(range.startContainer);
        const end = find(range.endContainer);
        const whole = !range.collapsed && range.startContainer === range.endContainer
            && range.endOffset === range.startOffset + 1 && range.startContainer.nodeType === Node.ELEMENT_NODE;
        if (!range.collapsed && !whole)
            put(end, range.endOffset, ']');
        put(start, range.startOffset, range.collapsed ? '|' : whole ? '{' : '[');
    }
    return copy.innerHTML;
})())js"_s;

} // namespace

DesignerBench::DesignerBench()
{
    designer.setMergePatience(patience);
    designer.resize(600, 400);
    designer.show();
}

void DesignerBench::awaitComplete()
{
    bool isComplete = false;
    QEventLoop loop;
    QObject::connect(&designer, &DesignerWidget::DocumentComplete, &loop, [&] {
        isComplete = true;
        loop.quit();
    });
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec();
    QVERIFY(isComplete);
}

void DesignerBench::awaitChange()
{
    QVERIFY(waitUntil([this] { return designer.isDirty(); }, patience));
}

void DesignerBench::load(const QString &html)
{
    designer.setDocumentHtml(html);
    awaitComplete();
}

void DesignerBench::show(const QString &html)
{
    static const QRegularExpression signs(u"[\\[\\]|{]"_s);
    QString page = html;
    load(page.remove(signs));
    const QByteArray argument = QJsonDocument(QJsonArray{html}).toJson(QJsonDocument::Compact);
    ask(u"%1(...%2)"_s.arg(setSelection, QString::fromUtf8(argument)));
}

QVariant DesignerBench::ask(const QString &script)
{
    std::optional<QVariant> answer;
    QEventLoop loop;
    designer.page().runJavaScript(script, QWebEngineScript::ApplicationWorld, [&](const QVariant &value) {
        answer = value;
        loop.quit();
    });
    // A loop of its own, because QTest's waits look at the page's events a hundred times a second only.
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    if (!answer)
        loop.exec();
    if (!answer)
        qFatal("the page doesn't answer");
    return *answer;
}

QVariant DesignerBench::run(DesignerCommand command, const QVariant &argument)
{
    return designer.execCommand(command, DesignerPrompting::DontPromptUser, argument);
}

int DesignerBench::status(DesignerCommand command)
{
    // The report of a selection made by script comes a moment later, but the answer to a query is up to date.
    return ask(u"zephiraDesigner.state().state.statuses[%1]"_s.arg(static_cast<int>(command))).toInt();
}

QString DesignerBench::text()
{
    return withoutOwnAttributes(ask(showSelection).toString());
}

QString DesignerBench::body()
{
    return withoutOwnAttributes(ask(u"document.body.innerHTML"_s).toString());
}

QString DesignerBench::withoutOwnAttributes(QString markup)
{
    static const QRegularExpression own(u" (zs[0-9a-f]+t=\"\"|nomodule=\"zs[0-9a-f]+\")"_s);
    return markup.remove(own);
}

QWidget &DesignerBench::target()
{
    return *designer.view().focusProxy();
}

void DesignerBench::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    target().setFocus();
    QTest::keyClick(&target(), key, modifiers);
}

void DesignerBench::type(const QString &text)
{
    target().setFocus();
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, &target(), QTest::asciiToKey(c.toLatin1()), c, Qt::NoModifier);
}

void DesignerBench::mouse(QEvent::Type type, const QPoint &place, Qt::MouseButton button)
{
    const bool isMove = type == QEvent::MouseMove;
    const bool isUp = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, designer.view().mapToGlobal(place), isMove ? Qt::NoButton : button,
                      isUp ? Qt::NoButton : button, Qt::NoModifier);
    QCoreApplication::sendEvent(&target(), &event);
}

void DesignerBench::click(const QPoint &place)
{
    mouse(QEvent::MouseButtonPress, place);
    mouse(QEvent::MouseButtonRelease, place);
}

void DesignerBench::drag(const QPoint &from, const QPoint &to)
{
    mouse(QEvent::MouseButtonPress, from);
    mouse(QEvent::MouseMove, (from + to) / 2);
    mouse(QEvent::MouseMove, to);
    mouse(QEvent::MouseButtonRelease, to);
}

QString DesignerBench::write(const QString &name, const QByteArray &content) const
{
    return putFile(folder.path() + u'/' + name, content);
}

} // namespace zephira
