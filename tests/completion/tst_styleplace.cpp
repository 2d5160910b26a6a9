// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/styleplace.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

/// What stands at places of style sheets.
class TstStylePlace final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data()
    {
        using enum PlaceKind;
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("property");
        const auto add = [](const char *text, PlaceKind kind, const char *typed = "", const char *property = "") {
            QTest::newRow(text) << QByteArray(text) << static_cast<int>(kind) << QByteArray(typed)
                                << QByteArray(property);
        };
        add("", Selector);
        add("p", Selector, "p");
        add("p, a", Selector, "a");
        add("p > a", Selector, "a");
        add(".", Class);
        add("p.no", Class, "no");
        add("#", Id);
        add("div #ma", Id, "ma");
        add("a:", Pseudo, ":");
        add("a:ho", Pseudo, ":ho");
        add("a::be", Pseudo, "::be");
        add("a:not(.x", Class, "x");
        add("a[hr", None);
        add("@", AtRule, "@");
        add("p {} @me", AtRule, "@me");
        add("@media (wi", None);
        add("@media print { ", Selector);
        add("@media print { p { co", Property, "co");
        add("@media print { p { } .a", Class, "a");
        add("@media print { p { } } @", AtRule, "@");
        add("@font-face { ", Property);
        add("@page :first { mar", Property, "mar");
        add("@keyframes a { fr", Selector, "fr");
        add("p {", Property);
        add("p { ", Property);
        add("p {\n  col", Property, "col");
        add("p { color: red; back", Property, "back");
        add("p { color: red } a", Selector, "a");
        add("p { color:", PropertyValue, "", "color");
        add("p { color: ", PropertyValue, "", "color");
        add("p { COLOR: re", PropertyValue, "re", "color");
        add("p { border: 1px so", PropertyValue, "so", "border");
        add("p { background: linear-gradient(to right, re", PropertyValue, "re", "background");
        add("p { color: #ff", None);
        add("p { margin: 10", None);
        add("p { color: red !im", PropertyValue, "!im", "color");
        add("p { --mine: ", PropertyValue, "", "--mine");
        add("p { color red", None);
        add("p { content: \"a", None);
        add("p { content: \"a;}\"; co", Property, "co");
        add("p { content: \"a\n co", PropertyValue, "co", "content");
        add("p { background: url(pic/a", File, "a", "href");
        add("p { background: url(\"pic/a", File, "a", "href");
        add("p { background: url(a.png) no", PropertyValue, "no", "background");
        add("@import \"st", File, "st", "href");
        add("@import url(st", File, "st", "href");
        add("/* p { ", None);
        add("/* a: */ p { co", Property, "co");
        add("p { /* x */ co", Property, "co");
        add("p { color: red; /* x */ co", Property, "co");
        add("p { &:", Pseudo, ":");
        add("p { .in", Class, "in");
        add("p { color: <?= $a ?>; co", Property, "co");
        add("p { color: <?= $a", None);
        add("p { } } } a", Selector, "a");
        add("p { a: b\\", PropertyValue, "", "a");
    }

    void places()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, typed);
        const CompletionPlace place = stylePlace(text, false);
        QTEST(static_cast<int>(place.kind), "kind");
        if (place.kind == PlaceKind::None)
            return;
        QCOMPARE(text.sliced(place.start), typed);
        QTEST(place.attribute, "property");
    }

    void declarations()
    {
        QCOMPARE(stylePlace("", true).kind, PlaceKind::Property);
        QCOMPARE(stylePlace("color:red;", true).kind, PlaceKind::Property);
        QCOMPARE(stylePlace("color:", true).kind, PlaceKind::PropertyValue);
        QCOMPARE(stylePlace("a { color:", true).kind, PlaceKind::PropertyValue);
        QCOMPARE(stylePlace("background: url(a/b", true).folder, QByteArray("a/"));
    }
};

ZEPHIRA_TEST(TstStylePlace)

#include "tst_styleplace.moc"
