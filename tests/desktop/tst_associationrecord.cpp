// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/associationrecord.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

using Content = std::optional<QByteArray>;

const QByteArray list = "[Default Applications]\ntext/plain=notes.desktop\n\n[Added Associations]\n\n# the end";

QString browser(const QString &type)
{
    return type == u"text/html"_s ? u"browser.desktop"_s : QString();
}

AssociationRecord changed(const AssociationRecord &record, const Content &current, const QStringList &defaults,
                          const QStringList &listed = {})
{
    return withTypes(record, current, {defaults, defaults + listed}, "ours.desktop", browser);
}

/// What the program starts from.
AssociationRecord untouched(const Content &current)
{
    return {.before = current, .after = current, .types = {}, .kept = {}};
}

} // namespace

class TstAssociationRecord final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAndBack_data()
    {
        QTest::addColumn<Content>("before");
        QTest::newRow("no list") << Content();
        QTest::newRow("empty list") << Content("");
        QTest::newRow("usual list") << Content(list);
        QTest::newRow("empty entry") << Content("[Default Applications]\ntext/plain=\n");
        QTest::newRow("own program among others")
            << Content("[Default Applications]\ntext/plain=a.desktop;ours.desktop\n");
        QTest::newRow("binary") << Content(QByteArray("\x00\xff[\n=", 5));
    }

    void thereAndBack()
    {
        QFETCH(Content, before);
        const AssociationRecord bound = changed(untouched(before), before, {u"text/plain"_s}, {u"text/html"_s});
        QVERIFY(bound.after.has_value() && bound.after != before);
        const AssociationRecord fewer = changed(bound, bound.after, {}, {u"text/html"_s});
        QVERIFY(fewer.after != bound.after);
        const AssociationRecord back = changed(fewer, fewer.after, {});
        QVERIFY(back.after == before);
    }

    void boundTypesComeFirst()
    {
        const AssociationRecord bound = changed(untouched(list), list, {u"text/plain"_s});
        QCOMPARE(*bound.after,
                 "[Default Applications]\ntext/plain=ours.desktop;notes.desktop\n\n"
                 "[Added Associations]\ntext/plain=ours.desktop;\n\n# the end");
        QVERIFY(bound.kept.isEmpty());
    }

    /// A default program that no list names would lose its place to one that is listed.
    void listedTypesKeepTheirDefault()
    {
        const AssociationRecord bound = changed(untouched(list), list, {}, {u"text/html"_s, u"text/plain"_s});
        QCOMPARE(*bound.after,
                 "[Default Applications]\ntext/plain=notes.desktop\ntext/html=browser.desktop;\n\n"
                 "[Added Associations]\ntext/html=ours.desktop;\ntext/plain=ours.desktop;\n\n# the end");
        QCOMPARE(bound.kept, (QMap<QString, QString>{{u"text/html"_s, u"browser.desktop"_s}}));
        // From listed to default, and the other way round.
        const AssociationRecord first = changed(bound, bound.after, {u"text/html"_s}, {u"text/plain"_s});
        QVERIFY(first.after->contains("\ntext/html=ours.desktop;\n"));
        QVERIFY(first.kept.isEmpty());
        const AssociationRecord second = changed(first, first.after, {}, {u"text/html"_s, u"text/plain"_s});
        QVERIFY(second.after->contains("\ntext/html=browser.desktop;\n"));
        QVERIFY(changed(second, second.after, {}).after == Content(list));
    }

    /// What others change in the list meanwhile stays, and only that.
    void othersChangeTheList()
    {
        const AssociationRecord bound = changed(untouched(list), list, {u"text/plain"_s}, {u"text/html"_s});
        QByteArray meanwhile = *bound.after;
        meanwhile.replace("[Added", "image/png=viewer.desktop\n[Added");
        QCOMPARE(
            *changed(bound, meanwhile, {}).after,
            "[Default Applications]\ntext/plain=notes.desktop\n\nimage/png=viewer.desktop\n[Added Associations]\n\n"
            "# the end");
        // The same in steps.
        const AssociationRecord fewer = changed(bound, meanwhile, {}, {u"text/html"_s});
        QVERIFY(fewer.after->contains("image/png"));
        QVERIFY(changed(fewer, fewer.after, {}).after == changed(bound, meanwhile, {}).after);
    }

    /// A type that the user gives to another program stays there when another type is bound.
    void theUsersChoiceStays()
    {
        const AssociationRecord bound = changed(untouched({}), {}, {u"text/plain"_s});
        const QByteArray meanwhile = QByteArray(*bound.after).replace("=ours.desktop;\n\n", "=notes.desktop\n\n");
        const AssociationRecord more = changed(bound, meanwhile, {u"text/plain"_s, u"text/xml"_s});
        QVERIFY(more.after->contains("\ntext/plain=notes.desktop\n"));
        QVERIFY(more.after->contains("\ntext/xml=ours.desktop;\n"));
        QCOMPARE(*changed(more, more.after, {}).after,
                 "[Default Applications]\ntext/plain=notes.desktop\n\n[Added Associations]\n");
    }

    /// A kept default program that the user has replaced isn't taken out.
    void theUsersChoiceInPlaceOfAKeptOne()
    {
        const AssociationRecord bound = changed(untouched({}), {}, {}, {u"text/html"_s});
        const QByteArray meanwhile = QByteArray(*bound.after).replace("browser.desktop;", "fox.desktop");
        QVERIFY(changed(bound, meanwhile, {}).after->contains("text/html=fox.desktop\n"));
    }

    void theListIsRemovedMeanwhile()
    {
        const AssociationRecord bound = changed(untouched(list), list, {u"text/plain"_s});
        QVERIFY(!changed(bound, {}, {}).after.has_value());
    }

    void textOfTheRecord()
    {
        const AssociationRecord bound = changed(untouched({}), {}, {u"text/plain"_s}, {u"text/html"_s});
        const Result<AssociationRecord> again = AssociationRecord::fromJson(bound.toJson());
        QVERIFY(again.ok());
        QVERIFY(again.value().before == bound.before);
        QVERIFY(again.value().after == bound.after);
        QVERIFY(again.value().types == bound.types);
        QCOMPARE(again.value().kept, bound.kept);
        const AssociationRecord other = changed(untouched("\xff"), "\xff", {u"a/b"_s});
        QVERIFY(AssociationRecord::fromJson(other.toJson()).value().before == Content("\xff"));
    }

    void damagedRecord_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << QByteArray("{\"after\":");
        QTest::newRow("no list") << QByteArray(R"({"defaults": [], "all": []})");
        QTest::newRow("no types") << QByteArray(R"({"after": ""})");
    }

    void damagedRecord()
    {
        QFETCH(QByteArray, json);
        QCOMPARE(AssociationRecord::fromJson(json).error().code, Error::Code::Malformed);
    }
};

ZEPHIRA_TEST(TstAssociationRecord)
#include "tst_associationrecord.moc"
