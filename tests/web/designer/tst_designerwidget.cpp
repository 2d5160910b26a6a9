// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/eventwait.h"
#include "support/testregistry.h"
#include "web/designer/designerbench.h"
#include "web/designer/designerhandles.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QWebEngineView>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The designer as its host uses it.
class TstDesignerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DesignerBench>(); }
    void init() { m_bench->designer.setEvents({}); }
    void cleanup();
    void cleanupTestCase() { m_bench.reset(); }

    void beforeTheFirstPage();
    void byName();
    void events();
    void blockFormatNames();
    void values();
    void keyIsKnownAtOnce();
    void statusFollowsTheCaret();
    void browseMode();
    void looks();
    void details();
    void everythingUnseenIsShown_data();
    void everythingUnseenIsShown();
    void signsArePainted();
    void signsLeaveTheSelectedAlone();
    void contextMenu();
    void rightClick();
    void pictureIsAskedFor();
    void pictureIsNotChosen();
    void linkIsAskedFor();
    void textIsLookedFor();
    void fontDialog();
    void promptsCanBeForbidden();
    void clipboardBetweenPages();
    void clipboardFromElsewhere_data();
    void clipboardFromElsewhere();
    void clipboardKeys();
    void framesets();
    void pageWhenTheOneBeforeIsReady();
    void largePage();

private:
    void awaitComplete(const std::function<void()> &load);

    std::unique_ptr<DesignerBench> m_bench;
};

void TstDesignerWidget::cleanup()
{
    QVERIFY(m_bench->prompts.verify());
}

void TstDesignerWidget::awaitComplete(const std::function<void()> &load)
{
    const QSignalSpy complete(&m_bench->designer, &DesignerWidget::DocumentComplete);
    load();
    QVERIFY(waitUntil([&] { return !complete.isEmpty(); }, DesignerBench::patience));
}

void TstDesignerWidget::beforeTheFirstPage()
{
    DesignerWidget designer(m_bench->files, m_bench->prompts);
    QVERIFY(!designer.isShowing());
    QVERIFY(!designer.isDirty());
    QCOMPARE(designer.documentHtml(), QString());
    QCOMPARE(designer.queryStatus(DesignerCommand::Bold), 1);
    QCOMPARE(designer.selectionType(), u"None"_s);
    QCOMPARE(designer.execCommand(DesignerCommand::Bold, DesignerPrompting::Default, {}), QVariant());
    designer.pasteHtml(u"a"_s);
    designer.show();
    QVERIFY(designer.isShowing());
}

void TstDesignerWidget::byName()
{
    QWidget *widget = &m_bench->designer;
    awaitComplete([&] { QVERIFY(widget->setProperty("DocumentHTML", u"<p>a</p>"_s)); });
    QCOMPARE(widget->property("IsDirty").toBool(), false);
    QVariant result;
    QVERIFY(QMetaObject::invokeMethod(widget, "ExecCommand", Q_RETURN_ARG(QVariant, result), Q_ARG(int, 5035)));
    int status = 0;
    QVERIFY(QMetaObject::invokeMethod(widget, "QueryStatus", Q_RETURN_ARG(int, status), Q_ARG(int, 5000)));
    QCOMPARE(status, 3);
    QCOMPARE(widget->property("selectionType").toString(), u"Text"_s);
    QVERIFY(QMetaObject::invokeMethod(widget, "ExecCommand", Q_RETURN_ARG(QVariant, result), Q_ARG(int, 5044),
                                      Q_ARG(int, 2), Q_ARG(QVariant, u"Arial"_s)));
    QVERIFY(QMetaObject::invokeMethod(widget, "ExecCommand", Q_RETURN_ARG(QVariant, result), Q_ARG(int, 5013),
                                      Q_ARG(int, 2)));
    QCOMPARE(result.toString(), u"Arial"_s);
    QVERIFY(QMetaObject::invokeMethod(widget, "pasteHTML", Q_ARG(QString, u"<b>c</b>"_s)));
    QCOMPARE(widget->property("IsDirty").toBool(), true);
    QVERIFY(widget->property("DocumentHTML").toString().contains(u"<b>c</b>"));
    for (const char *look : {"ShowBorders", "ShowDetails", "BrowseMode", "SnapToGrid"}) {
        QCOMPARE(widget->property(look).toBool(), false);
        QVERIFY(widget->setProperty(look, true));
        QCOMPARE(widget->property(look).toBool(), true);
        QVERIFY(widget->setProperty(look, false));
    }
    const QString path = m_bench->write(u"named.html"_s, "<p>named</p>");
    awaitComplete([&] { QVERIFY(QMetaObject::invokeMethod(widget, "LoadDocument", Q_ARG(QString, path))); });
    QCOMPARE(widget->property("DocumentHTML").toString(), u"<p>named</p>"_s);
    m_bench->designer.setBaseFile({});
}

void TstDesignerWidget::events()
{
    int completed = 0;
    int displayed = 0;
    m_bench->designer.setEvents({.documentComplete = [&] { ++completed; }, .displayChanged = [&] { ++displayed; }});
    QSignalSpy changes(&m_bench->designer, &DesignerWidget::DisplayChanged);
    awaitComplete([&] { m_bench->designer.setDocumentHtml(u"<p>ab</p>"_s); });
    QCOMPARE(completed, 1);
    QTRY_VERIFY_WITH_TIMEOUT(displayed > 0, DesignerBench::patience);
    m_bench->ask(u"getSelection().collapse(document.querySelector('p').firstChild, 1); null"_s);
    int before = displayed;
    m_bench->press(Qt::Key_Right);
    QTRY_VERIFY_WITH_TIMEOUT(displayed > before, DesignerBench::patience);
    before = displayed;
    m_bench->run(DesignerCommand::Bold);
    QVERIFY(displayed > before);
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), displayed, DesignerBench::patience);
}

void TstDesignerWidget::blockFormatNames()
{
    awaitComplete([&] { m_bench->designer.setDocumentHtml(u"<p>ab</p>"_s); });
    QCOMPARE(m_bench->run(DesignerCommand::GetBlockFormatNames).toStringList(),
             (QStringList{u"Normal"_s, u"Formatted"_s, u"Address"_s, u"Heading 1"_s, u"Heading 2"_s, u"Heading 3"_s,
                          u"Heading 4"_s, u"Heading 5"_s, u"Heading 6"_s, u"Numbered List"_s, u"Bulleted List"_s,
                          u"Directory List"_s, u"Menu List"_s, u"Definition Term"_s, u"Definition"_s, u"Paragraph"_s}));
}

void TstDesignerWidget::values()
{
    m_bench->show(u"<h3><font face=\"Courier New, monospace\" size=\"6\">a|</font></h3>"_s);
    m_bench->run(DesignerCommand::SelectAll);
    QCOMPARE(m_bench->run(DesignerCommand::GetFontName).toString(), u"Courier New, monospace"_s);
    QCOMPARE(m_bench->run(DesignerCommand::GetFontSize).toInt(), 6);
    QCOMPARE(m_bench->run(DesignerCommand::GetBlockFormat).toString(), u"Heading 3"_s);
    // A value is reported only if the whole selection has it.
    m_bench->show(u"<p>[a<font face=\"Arial\" size=\"6\">b</font></p><h1>c]</h1>"_s);
    m_bench->status(DesignerCommand::GetFontName);
    m_bench->run(DesignerCommand::GetBlockFormatNames);
    QCOMPARE(m_bench->designer.queryStatus(DesignerCommand::GetFontName), 11);
    QCOMPARE(m_bench->run(DesignerCommand::GetFontName).toString(), QString());
    QCOMPARE(m_bench->run(DesignerCommand::GetFontSize).toInt(), 0);
    QCOMPARE(m_bench->run(DesignerCommand::GetBlockFormat).toString(), QString());
    m_bench->show(u"<p>a|</p>"_s);
    m_bench->run(DesignerCommand::SetFontSize, 7);
    QCOMPARE(m_bench->run(DesignerCommand::GetFontSize).toInt(), 7);
    m_bench->show(u"<p>[a]</p>"_s);
    const QStringList names = m_bench->run(DesignerCommand::GetBlockFormatNames).toStringList();
    for (const QString &name : names) {
        m_bench->run(DesignerCommand::SetBlockFormat, name);
        QCOMPARE(m_bench->run(DesignerCommand::GetBlockFormat).toString(), name == u"Paragraph" ? u"Normal"_s : name);
    }
}

/// A query right after a key press takes the key into account.
void TstDesignerWidget::keyIsKnownAtOnce()
{
    m_bench->show(u"<p>a|</p>"_s);
    m_bench->type(u"b"_s);
    QVERIFY(m_bench->designer.isDirty());
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>ab</p>"_s);
    m_bench->type(u"c"_s);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>abc</p>"_s);
}

void TstDesignerWidget::statusFollowsTheCaret()
{
    m_bench->show(u"<p>|a<b>b</b></p>"_s);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.queryStatus(DesignerCommand::Bold), 3, DesignerBench::patience);
    m_bench->press(Qt::Key_End);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->designer.queryStatus(DesignerCommand::Bold), 7, DesignerBench::patience);
}

void TstDesignerWidget::browseMode()
{
    m_bench->show(u"<p>[a]</p>"_s);
    m_bench->designer.setBrowseMode(true);
    for (const DesignerCommand command : {DesignerCommand::Bold, DesignerCommand::Cut, DesignerCommand::Paste,
                                          DesignerCommand::Delete, DesignerCommand::Undo, DesignerCommand::GetFontName,
                                          DesignerCommand::SetBlockFormat, DesignerCommand::InsertTable})
        QCOMPARE(m_bench->designer.queryStatus(command), 1);
    for (const DesignerCommand command : {DesignerCommand::Copy, DesignerCommand::FindText, DesignerCommand::SelectAll})
        QCOMPARE(m_bench->designer.queryStatus(command), 3);
    m_bench->run(DesignerCommand::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"a"_s);
    QCOMPARE(m_bench->run(DesignerCommand::GetFontName).toString(), QString());
    m_bench->run(DesignerCommand::Bold);
    m_bench->designer.pasteHtml(u"b"_s);
    m_bench->type(u"c"_s);
    QCOMPARE(m_bench->ask(u"document.designMode"_s).toString(), u"off"_s);
    m_bench->designer.setBrowseMode(false);
    QCOMPARE(m_bench->body(), u"<p>a</p>"_s);
    QCOMPARE(m_bench->ask(u"document.designMode"_s).toString(), u"on"_s);
}

void TstDesignerWidget::looks()
{
    const auto outline = [&] {
        return m_bench->ask(u"getComputedStyle(document.querySelector('td')).outlineStyle"_s).toString();
    };
    m_bench->designer.setShowBorders(true);
    awaitComplete([&] { m_bench->designer.setDocumentHtml(u"<table><tr><td>a</table>"_s); });
    QCOMPARE(outline(), u"dotted"_s);
    m_bench->designer.setShowBorders(false);
    QCOMPARE(outline(), u"none"_s);
}

void TstDesignerWidget::details()
{
    const auto shown = [&](const QString &selector) {
        return m_bench
            ->ask(u"[getComputedStyle(document.querySelector('%1')).display, "
                  "getComputedStyle(document.querySelector('%1'), '::before').content].join()"_s.arg(selector))
            .toString();
    };
    awaitComplete([&] {
        m_bench->designer.setDocumentHtml(u"<body>x<% a %><!-- c --><script>s</script><form>f</form><a name=n></a>"_s);
    });
    QCOMPARE(shown(u"zephira-mark"_s), u"inline-block,\"<%\""_s);
    QCOMPARE(shown(u"zephira-mark:nth-of-type(2)"_s), u"none,none"_s);
    QCOMPARE(shown(u"script"_s), u"none,none"_s);
    m_bench->designer.setShowDetails(true);
    QVERIFY(!m_bench->designer.isDirty());
    QCOMPARE(shown(u"zephira-mark:nth-of-type(2)"_s), u"inline-block,\"<!\""_s);
    QCOMPARE(shown(u"script"_s), u"inline-block,\"script\""_s);
    QCOMPARE(shown(u"form"_s), u"block,\"form\""_s);
    QCOMPARE(shown(u"a"_s), u"inline,\"anchor\""_s);
    m_bench->designer.setShowDetails(false);
    m_bench->designer.setBrowseMode(true);
    QCOMPARE(shown(u"zephira-mark"_s), u"none,none"_s);
    m_bench->designer.setBrowseMode(false);
}

void TstDesignerWidget::everythingUnseenIsShown_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("word");
    const auto row = [](const QString &element, const QString &word) {
        QTest::newRow(qPrintable(element)) << element << word;
    };
    row(u"<a name=\"x\"></a>"_s, u"anchor"_s);
    row(u"<a id=\"x\"></a>"_s, u"anchor"_s);
    row(u"<form></form>"_s, u"form"_s);
    row(u"<map></map>"_s, u"map"_s);
    row(u"<map><area></map>"_s, u"map"_s);
    row(u"<applet></applet>"_s, u"applet"_s);
    row(u"<bgsound>"_s, u"sound"_s);
    row(u"<template></template>"_s, u"template"_s);
    row(u"<script>s</script>"_s, u"script"_s);
    row(u"<style>p</style>"_s, u"style"_s);
    row(u"<link>"_s, u"link"_s);
    row(u"<meta>"_s, u"meta"_s);
}

/// The glyph takes up space of its own, and neither showing nor hiding it counts as a change of the page.
void TstDesignerWidget::everythingUnseenIsShown()
{
    QFETCH(QString, element);
    QFETCH(QString, word);
    const QString page = u"<p>a</p>"_s + element;
    m_bench->load(page);
    m_bench->designer.setShowDetails(true);
    const QString shown =
        u"(e => [getComputedStyle(e, '::before').content, e.getBoundingClientRect().width > 10].join())"
        "(document.body.children[1])"_s;
    QCOMPARE(m_bench->ask(shown).toString(), u"\"%1\",true"_s.arg(word));
    m_bench->ask(u"document.body.firstChild.firstChild.appendData('b'); null"_s);
    m_bench->awaitChange();
    const QString edited = QString(page).replace(u"<p>a"_s, u"<p>ab"_s);
    QCOMPARE(m_bench->designer.documentHtml(), edited);
    m_bench->designer.setShowDetails(false);
    QCOMPARE(m_bench->designer.documentHtml(), edited);
}

void TstDesignerWidget::signsLeaveTheSelectedAlone()
{
    QWidget view;
    view.resize(120, 100);
    DesignerHandles handles(&view);
    const auto sign = [](int x, int y) { return QVariantMap{{u"x"_s, x}, {u"y"_s, y}, {u"word"_s, u"hidden"_s}}; };
    handles.show({{u"x"_s, 40},
                  {u"y"_s, 30},
                  {u"width"_s, 60},
                  {u"height"_s, 40},
                  {u"signs"_s, QVariantList{sign(30, 45), sign(2, 2)}}},
                 1);
    QImage picture(view.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    handles.render(&picture, {}, {}, {});
    const auto isPainted = [&](const QRect &part) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (qAlpha(picture.pixel(x, y)) > 0)
                    return true;
            }
        }
        return false;
    };
    QVERIFY(!isPainted({41, 31, 57, 37}));
    QVERIFY(isPainted({2, 2, 20, 10}));
    QVERIFY(isPainted({31, 46, 3, 8}));
}

/// Glyphs of elements for which the engine has no box are painted on top.
void TstDesignerWidget::signsArePainted()
{
    const QString page = u"<body style=\"margin: 0\"><p style=\"font: 20px/20px monospace; margin: 0\">ab<br>c"
                         "<input type=\"hidden\"><input type=\"hidden\"></p><noscript>n</noscript>"
                         "<div style=\"height: 3000px\"></div>x<br>"_s;
    m_bench->load(page);
    const DesignerHandles &handles = m_bench->designer.handles();
    QVERIFY(handles.signs().isEmpty());
    QVERIFY(handles.isHidden());
    m_bench->designer.setShowDetails(true);
    const auto words = [&] {
        QStringList list;
        for (const DesignerHandles::Sign &sign : handles.signs())
            list.append(sign.word);
        return list;
    };
    QCOMPARE(words(), (QStringList{u"\u21b5"_s, u"hidden"_s, u"hidden"_s, u"noscript"_s}));
    QVERIFY(!handles.isHidden());
    QVERIFY(handles.signs()[0].place.x() > 10);
    QVERIFY(handles.signs()[0].place.y() < 20);
    QVERIFY(handles.signs()[1].place.y() > handles.signs()[0].place.y());
    QVERIFY(m_bench->designer.view().grab().toImage().pixelColor((handles.signs()[0].place + QPointF(1, 1)).toPoint())
            == QColor(0xff, 0xf4, 0xc8));
    m_bench->ask(u"scrollTo(0, 3000); null"_s);
    QTRY_COMPARE_WITH_TIMEOUT(words(), QStringList{u"\u21b5"_s}, DesignerBench::patience);
    QCOMPARE(m_bench->designer.documentHtml(), page);
    m_bench->designer.setBrowseMode(true);
    QVERIFY(handles.signs().isEmpty());
    m_bench->designer.setBrowseMode(false);
    m_bench->designer.setShowDetails(false);
    QVERIFY(handles.isHidden());
}

void TstDesignerWidget::contextMenu()
{
    int chosen = -1;
    m_bench->designer.setEvents({.contextMenuAction = [&](int index) { chosen = index; }});
    QSignalSpy signalled(&m_bench->designer, &DesignerWidget::ContextMenuAction);
    m_bench->designer.setContextMenu(
        {u"Cut"_s, u""_s, u"Bold"_s},
        {DesignerMenuState::Greyed, DesignerMenuState::Unchecked, DesignerMenuState::Checked});
    const auto *menu = m_bench->designer.findChild<QMenu *>(u"DesignerContextMenu"_s);
    QVERIFY(menu);
    const QList<QAction *> actions = menu->actions();
    QCOMPARE(actions.size(), 3);
    QVERIFY(!actions[0]->isEnabled());
    QVERIFY(actions[1]->isSeparator());
    QVERIFY(actions[2]->isEnabled() && actions[2]->isChecked());
    actions[2]->trigger();
    QCOMPARE(chosen, 2);
    QCOMPARE(signalled.value(0).value(0).toInt(), 2);
    m_bench->designer.SetContextMenu({u"Copy"_s}, {2});
    QVERIFY(!m_bench->designer.findChild<QMenu *>(u"DesignerContextMenu"_s)->actions().value(0)->isEnabled());
}

void TstDesignerWidget::rightClick()
{
    m_bench->show(
        u"<body style=\"margin:0\"><table style=\"font-size:40px\"><tbody><tr><td>a</td></tr></tbody></table>|"_s);
    int tableStatus = 0;
    QPoint place;
    m_bench->designer.setEvents({.showContextMenu = [&](const QPoint &where) {
        place = where;
        tableStatus = m_bench->designer.queryStatus(DesignerCommand::InsertRow);
        m_bench->designer.setContextMenu({u"Cut"_s}, {DesignerMenuState::Unchecked});
    }});
    const QPoint cell(12, 25);
    m_bench->mouse(QEvent::MouseButtonPress, cell, Qt::RightButton);
    m_bench->mouse(QEvent::MouseButtonRelease, cell, Qt::RightButton);
    QTRY_VERIFY_WITH_TIMEOUT(!place.isNull(), DesignerBench::patience);
    QCOMPARE(place, m_bench->designer.view().mapToGlobal(cell));
    QCOMPARE(tableStatus, 3);
    auto *menu = m_bench->designer.findChild<QMenu *>(u"DesignerContextMenu"_s);
    QTRY_VERIFY_WITH_TIMEOUT(menu->isVisible(), DesignerBench::patience);
    menu->close();
}

void TstDesignerWidget::pictureIsAskedFor()
{
    const QString folder = m_bench->folder.path();
    m_bench->designer.setBaseFile(folder + u"/site/page.html"_s);
    m_bench->show(u"<p>a|</p>"_s);
    m_bench->prompts.expectFile({u"Picture"_s,
                                 u"Pictures|*.gif;*.bmp;*.jpg;*.png;*.svg;*.webp;*.jpeg;*.avif;*.ico|All Files|*.*"_s,
                                 folder + u"/site"_s},
                                folder + u"/my pics/1#2.gif"_s);
    m_bench->designer.execCommand(DesignerCommand::Image, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->text(), u"<p>a{<img src=\"../my%20pics/1%232.gif\" alt=\"\"></p>"_s);
    m_bench->designer.setBaseFile({});
    QCOMPARE(fileAddress({}, u"/a b.gif"_s), u"file:///a%20b.gif"_s);
    QCOMPARE(fileAddress(u"/site/page.html"_s, u"/site/sub/a.gif"_s), u"sub/a.gif"_s);
}

void TstDesignerWidget::pictureIsNotChosen()
{
    m_bench->show(u"<p>a|</p>"_s);
    m_bench->prompts.expectFile(
        {u"Picture"_s, u"Pictures|*.gif;*.bmp;*.jpg;*.png;*.svg;*.webp;*.jpeg;*.avif;*.ico|All Files|*.*"_s}, {});
    m_bench->designer.execCommand(DesignerCommand::Image, DesignerPrompting::Default, {});
    QVERIFY(!m_bench->designer.isDirty());
}

void TstDesignerWidget::linkIsAskedFor()
{
    m_bench->show(u"<p>[a]</p>"_s);
    m_bench->prompts.expectInput({u"Address of the link:"_s, u"Hyperlink"_s, u"http://"_s}, u"http://x/"_s);
    m_bench->designer.execCommand(DesignerCommand::Hyperlink, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->text(), u"<p><a href=\"http://x/\">[a]</a></p>"_s);
    m_bench->prompts.expectInput({u"Address of the link:"_s, u"Hyperlink"_s, u"http://x/"_s}, u""_s);
    m_bench->designer.execCommand(DesignerCommand::Hyperlink, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->body(), u"<p>a</p>"_s);
    m_bench->prompts.expectInput({u"Address of the link:"_s, u"Hyperlink"_s, u"http://"_s}, {});
    m_bench->designer.execCommand(DesignerCommand::Hyperlink, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->body(), u"<p>a</p>"_s);
    const QString odd = u"x?a=1&b=\"2\"&lt;'"_s;
    m_bench->prompts.expectInput({u"Address of the link:"_s, u"Hyperlink"_s, u"http://"_s}, odd);
    m_bench->designer.execCommand(DesignerCommand::Hyperlink, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->text(), u"<p><a href=\"x?a=1&amp;b=&quot;2&quot;&amp;lt;'\">[a]</a></p>"_s);
    m_bench->prompts.expectInput({u"Address of the link:"_s, u"Hyperlink"_s, odd}, {});
    m_bench->designer.execCommand(DesignerCommand::Hyperlink, DesignerPrompting::Default, {});
}

void TstDesignerWidget::textIsLookedFor()
{
    m_bench->show(u"<p>|one two One</p>"_s);
    m_bench->prompts.expectInput({u"Find what:"_s, u"Find"_s}, u"one"_s);
    QVERIFY(m_bench->designer.execCommand(DesignerCommand::FindText, DesignerPrompting::Default, {}).toBool());
    QCOMPARE(m_bench->text(), u"<p>[one] two One</p>"_s);
    m_bench->prompts.expectInput({u"Find what:"_s, u"Find"_s, u"one"_s}, u"one"_s);
    m_bench->designer.execCommand(DesignerCommand::FindText, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->text(), u"<p>one two [One]</p>"_s);
    // From the end the search continues at the beginning.
    m_bench->prompts.expectInput({u"Find what:"_s, u"Find"_s, u"one"_s}, u"one"_s);
    m_bench->designer.execCommand(DesignerCommand::FindText, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->text(), u"<p>[one] two One</p>"_s);
    m_bench->prompts.expectInput({u"Find what:"_s, u"Find"_s, u"one"_s}, {});
    m_bench->designer.execCommand(DesignerCommand::FindText, DesignerPrompting::Default, {});
    m_bench->prompts.expectInput({u"Find what:"_s, u"Find"_s, u"one"_s}, u"three"_s);
    m_bench->prompts.expectTell(u"Cannot find \"three\"."_s, u"Find"_s);
    QVERIFY(!m_bench->designer.execCommand(DesignerCommand::FindText, DesignerPrompting::Default, {}).toBool());
    QVERIFY(!m_bench->designer.isDirty());
}

void TstDesignerWidget::fontDialog()
{
    m_bench->show(u"<p><font face=\"Arial\">[a]</font></p>"_s);
    const FontChoice before{.name = u"Arial"_s, .size = 12};
    m_bench->prompts.expectFont(before, FontChoice{.name = u"Verdana"_s, .size = 23, .bold = true, .underline = true});
    m_bench->designer.execCommand(DesignerCommand::Font, DesignerPrompting::Default, {});
    QCOMPARE(m_bench->text(), u"<p><font face=\"Verdana\" size=\"6\"><b><u>[a]</u></b></font></p>"_s);
    m_bench->run(DesignerCommand::Undo);
    QCOMPARE(m_bench->text(), u"<p><font face=\"Arial\">[a]</font></p>"_s);
    m_bench->prompts.expectFont(before, {});
    m_bench->designer.execCommand(DesignerCommand::Font, DesignerPrompting::Default, {});
    QVERIFY(!m_bench->designer.isDirty());
}

void TstDesignerWidget::promptsCanBeForbidden()
{
    m_bench->show(u"<p>[a]</p>"_s);
    for (const DesignerCommand command :
         {DesignerCommand::Image, DesignerCommand::Hyperlink, DesignerCommand::FindText, DesignerCommand::Font})
        QCOMPARE(m_bench->designer.execCommand(command, DesignerPrompting::DontPromptUser, {}), QVariant());
    QVERIFY(!m_bench->designer.isDirty());
}

void TstDesignerWidget::clipboardBetweenPages()
{
    m_bench->load(u"<p>a<b>b<% s %>c</b>d<!-- e --></p>"_s);
    m_bench->ask(u"getSelection().selectAllChildren(document.querySelector('b')); null"_s);
    m_bench->run(DesignerCommand::Copy);
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    QCOMPARE(data->html(), u"<b>b<% s %>c</b>"_s);
    m_bench->show(u"<p>x|y</p>"_s);
    QCOMPARE(m_bench->status(DesignerCommand::Paste), 0);
    QCOMPARE(m_bench->designer.queryStatus(DesignerCommand::Paste), 3);
    m_bench->run(DesignerCommand::Paste);
    QCOMPARE(m_bench->designer.documentHtml(), u"<p>x<b>b<% s %>c</b>y</p>"_s);
    QGuiApplication::clipboard()->clear();
    QCOMPARE(m_bench->designer.queryStatus(DesignerCommand::Paste), 1);
}

void TstDesignerWidget::clipboardFromElsewhere_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &html, const QString &text, const QString &page,
                        const QString &expected) { QTest::newRow(name) << html << text << page << expected; };
    row("text", {}, u"<b>  \r\nc"_s, u"<p>x|y</p>"_s, u"<p>x&lt;b&gt; &nbsp;<br>c|y</p>"_s);
    row("markup with rubbish", u"<meta charset=x><style>p{}</style><!--StartFragment--><i>a</i><!--EndFragment-->"_s,
        u"a"_s, u"<p>x|y</p>"_s, u"<p>x<i>a</i>|y</p>"_s);
    row("blocks into a paragraph", u"<p>a</p><p>b</p>"_s, {}, u"<p id=\"i\">x|y</p>"_s,
        u"<p id=\"i\">x</p><p>a</p><p>b</p>|<p>y</p>"_s);
    row("blocks in the place of a selection", u"<ul><li>a</li></ul>"_s, {}, u"<p>[x]</p>"_s, u"<ul><li>a</li></ul>|"_s);
    row("into an empty paragraph", {}, u"a"_s, u"<p>|<br></p>"_s, u"<p>a|</p>"_s);
    row("in the place of an element", {}, u"a"_s, u"<p>x{<img src=\"i\">y</p>"_s, u"<p>xa|y</p>"_s);
}

void TstDesignerWidget::clipboardFromElsewhere()
{
    QFETCH(QString, html);
    QFETCH(QString, text);
    QFETCH(QString, page);
    auto data = std::make_unique<QMimeData>();
    if (!html.isEmpty())
        data->setHtml(html);
    if (!text.isEmpty())
        data->setText(text);
    QGuiApplication::clipboard()->setMimeData(data.release());
    m_bench->show(page);
    const QString before = m_bench->body();
    m_bench->run(DesignerCommand::Paste);
    QTEST(m_bench->text(), "expected");
    m_bench->run(DesignerCommand::Undo);
    QCOMPARE(m_bench->body(), before);
}

void TstDesignerWidget::clipboardKeys()
{
    m_bench->show(u"<p>a[b]c</p>"_s);
    m_bench->press(Qt::Key_X, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>ac</p>"_s, DesignerBench::patience);
    m_bench->press(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(m_bench->body(), u"<p>abc</p>"_s, DesignerBench::patience);
    m_bench->show(u"<p>a[b]c</p>"_s);
    QGuiApplication::clipboard()->clear();
    m_bench->press(Qt::Key_C, Qt::ControlModifier);
    QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::clipboard()->text(), u"b"_s, DesignerBench::patience);
}

void TstDesignerWidget::framesets()
{
    const QString page = u"<html><frameset cols=\"*,*\"><frame src=\"a\"><frame src=\"b\"></frameset></html>"_s;
    awaitComplete([&] { m_bench->designer.setDocumentHtml(page); });
    for (const DesignerCommand command :
         {DesignerCommand::Bold, DesignerCommand::SetBlockFormat, DesignerCommand::InsertTable, DesignerCommand::Image,
          DesignerCommand::Delete, DesignerCommand::JustifyCenter, DesignerCommand::OrderedList,
          DesignerCommand::Indent, DesignerCommand::Outdent, DesignerCommand::Hyperlink, DesignerCommand::Unlink,
          DesignerCommand::Font, DesignerCommand::GetFontName, DesignerCommand::GetBlockFormat,
          DesignerCommand::SelectAll, DesignerCommand::InsertRow, DesignerCommand::AbsolutePosition,
          DesignerCommand::Undo})
        QCOMPARE(m_bench->designer.queryStatus(command), 1);
    m_bench->designer.pasteHtml(u"<b>x</b>"_s);
    QCOMPARE(m_bench->designer.documentHtml(), page);
}

/// The next page is set at the very moment when the one before could be written. What the user does as soon as it is
/// there must stay.
void TstDesignerWidget::pageWhenTheOneBeforeIsReady()
{
    const QString page = u"<p>page</p>"_s;
    for (int round = 0; round < 5; ++round) {
        m_bench->designer.setDocumentHtml(u"<p>before</p>"_s);
        const auto next = [&] { m_bench->designer.setDocumentHtml(page); };
        connect(&m_bench->designer.page(), &DesignerPage::ready, this, next, Qt::SingleShotConnection);
        int completed = 0;
        const auto edit = [&] {
            ++completed;
            m_bench->designer.pasteHtml(u"<p>x</p>"_s);
        };
        const auto connection = connect(&m_bench->designer, &DesignerWidget::DocumentComplete, this, edit);
        QTest::qWait(2000);
        disconnect(connection);
        QCOMPARE(completed, 1);
        QCOMPARE(m_bench->body(), u"<p>x</p><p>page</p>"_s);
    }
}

void TstDesignerWidget::largePage()
{
    const QString page = u"<p>some <b>text</b> &amp; more</p>\r\n"_s.repeated(100000);
    QElapsedTimer time;
    time.start();
    awaitComplete([&] { m_bench->designer.setDocumentHtml(page); });
    m_bench->designer.pasteHtml(u"<p>x</p>"_s);
    const QString text = m_bench->designer.documentHtml();
    QVERIFY2(text.size() == page.size() + u"<p>x</p>"_s.size() || text.size() == page.size() + u"<p>x</p>\r\n"_s.size(),
             qPrintable(QString::number(text.size())));
    qInfo("3.5 MB there and back in %lld ms", time.elapsed());
}

ZEPHIRA_TEST(TstDesignerWidget)
#include "tst_designerwidget.moc"
