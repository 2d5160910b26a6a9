// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/proposals.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

constexpr auto file =
    "A\tid\nA\tclass\nA\thidden\tv\nA\tonclick\nT\tp\t\t\tA paragraph.\nT\tinput\nA\ttype\tt\nS\tt\nV\ttext\nV\tcheckbox\n"
    "P\tcolor\tc95\nV\tred\nP\t-moz-x\t0\nP\tborder\t80\nP\tzoom\to3\n@\t@media\n@\t@-moz-document\n:\t:hover\n:\t::before\n";

} // namespace

/// What is offered at a place, and what is inserted for it.
class TstProposals final : public QObject
{
    Q_OBJECT

private:
    static QStringList textsAt(const CompletionPlace &place, PlaceLanguage language = PlaceLanguage::Html)
    {
        const CompletionData data{QByteArray(file)};
        const ProposalSources sources{
            .data = data,
            .colours = {u"red"_s, u"teal"_s},
            .names =
                [] {
                    return DocumentNames{{"one", "Two"}, {"b", "a"}, {"item"}, {"nr"}, {}};
                },
            .words =
                [] {
                    return QStringList{u"word"_s, u"other"_s};
                },
            .files = [](const QByteArray &folder) { return QStringList{u"of "_s + QString::fromUtf8(folder)}; }};
        QStringList texts;
        const QList<Proposal> list = proposals(place, language, sources);
        for (const Proposal &each : list)
            texts.append(each.text);
        return texts;
    }
    static ProposalText inserted(PlaceKind kind, const QString &text, QByteArrayView typed = {},
                                 QByteArrayView behind = {})
    {
        return proposalText({.text = text}, {.kind = kind, .quoted = true}, typed, behind);
    }

private Q_SLOTS:
    void kinds()
    {
        using enum PlaceKind;
        QCOMPARE(textsAt({.kind = None}), QStringList());
        QCOMPARE(textsAt({.kind = Words}), (QStringList{u"other"_s, u"word"_s}));
        // Tags of old pages come last.
        const QStringList tags = textsAt({.kind = Tag});
        QCOMPARE(tags.mid(0, 3), (QStringList{u"input"_s, u"p"_s, u"acronym"_s}));
        QVERIFY(tags.contains(u"font"));
        QVERIFY(!tags.contains(u"table"));
        QCOMPARE(textsAt({.kind = Selector}), tags);
        QCOMPARE(textsAt({.kind = Tag}, PlaceLanguage::Xml), QStringList{u"item"_s});
        QCOMPARE(textsAt({.kind = ClosingTag, .open = {"li", "ul"}}), (QStringList{u"li"_s, u"ul"_s}));
        QCOMPARE(textsAt({.kind = Attribute, .tag = "b", .taken = {"id"}}),
                 (QStringList{u"class"_s, u"hidden"_s, u"onclick"_s}));
        QCOMPARE(textsAt({.kind = Attribute}, PlaceLanguage::Xml), QStringList{u"nr"_s});
        QCOMPARE(textsAt({.kind = Value, .tag = "input", .attribute = "type"}),
                 (QStringList{u"text"_s, u"checkbox"_s}));
        QCOMPARE(textsAt({.kind = File, .folder = "pic/"}), QStringList{u"of pic/"_s});
        QCOMPARE(textsAt({.kind = Id}), (QStringList{u"one"_s, u"Two"_s}));
        QCOMPARE(textsAt({.kind = Class, .taken = {"a"}}), QStringList{u"b"_s});
        QCOMPARE(textsAt({.kind = Property}), (QStringList{u"border"_s, u"color"_s, u"-moz-x"_s, u"zoom"_s}));
        QCOMPARE(textsAt({.kind = PropertyValue, .attribute = "color"}),
                 (QStringList{u"red"_s, u"currentcolor"_s, u"transparent"_s, u"teal"_s, u"inherit"_s, u"initial"_s,
                              u"unset"_s, u"revert"_s, u"revert-layer"_s, u"!important"_s}));
        QVERIFY(!textsAt({.kind = PropertyValue, .attribute = "border"}).contains(u"teal"));
        QVERIFY(textsAt({.kind = PropertyValue, .attribute = "--own"}).contains(u"teal"));
        QCOMPARE(textsAt({.kind = AtRule}), (QStringList{u"@media"_s, u"@-moz-document"_s}));
        QCOMPARE(textsAt({.kind = Pseudo}), (QStringList{u"::before"_s, u":hover"_s}));
        QVERIFY(textsAt({.kind = Entity}).contains(u"eacute"));
        QCOMPARE(textsAt({.kind = Entity}, PlaceLanguage::Xml),
                 (QStringList{u"amp"_s, u"apos"_s, u"gt"_s, u"lt"_s, u"quot"_s}));
    }

    void notes()
    {
        const CompletionData data{QByteArray(file)};
        const auto noteOf = [&](const CompletionPlace &place, const QString &text) {
            const QList<Proposal> list = proposals(place, PlaceLanguage::Html, {.data = data, .colours = {u"teal"_s}});
            const auto found = std::ranges::find(list, text, &Proposal::text);
            return found == list.end() ? u"?"_s : found->note;
        };
        QCOMPARE(noteOf({.kind = PlaceKind::Tag}, u"font"_s), u"obsolete"_s);
        QCOMPARE(noteOf({.kind = PlaceKind::Tag}, u"p"_s), QString());
        QCOMPARE(noteOf({.kind = PlaceKind::Property}, u"zoom"_s), u"obsolete"_s);
        QCOMPARE(noteOf({.kind = PlaceKind::Entity}, u"eacute"_s), u"é"_s);
        QCOMPARE(noteOf({.kind = PlaceKind::Entity}, u"nbsp"_s), QString());
        QCOMPARE(noteOf({.kind = PlaceKind::PropertyValue, .attribute = "color"}, u"teal"_s), u"■"_s);
    }

    void withoutSources()
    {
        const CompletionData data{QByteArray()};
        for (const PlaceKind kind : {PlaceKind::Words, PlaceKind::File, PlaceKind::Id, PlaceKind::Class})
            QVERIFY(proposals({.kind = kind}, PlaceLanguage::Html, {.data = data}).isEmpty());
    }

    void insertedTexts()
    {
        using enum PlaceKind;
        QCOMPARE(inserted(Tag, u"div"_s, "di"), (ProposalText{"div", 3}));
        QCOMPARE(inserted(Tag, u"div"_s, "DI"), (ProposalText{"DIV", 3}));
        QCOMPARE(inserted(Tag, u"div"_s, "Di"), (ProposalText{"div", 3}));
        QCOMPARE(inserted(ClosingTag, u"div"_s), (ProposalText{"div>", 4}));
        QCOMPARE(inserted(ClosingTag, u"div"_s, "", ">x"), (ProposalText{"div", 3}));
        QCOMPARE(inserted(Attribute, u"class"_s), (ProposalText{"class=\"\"", 7, true}));
        QCOMPARE(inserted(Attribute, u"class"_s, "CL"), (ProposalText{"CLASS=\"\"", 7, true}));
        QCOMPARE(inserted(Attribute, u"class"_s, "", " = 'a'"), (ProposalText{"class", 5}));
        QCOMPARE(inserted(Value, u"text"_s), (ProposalText{"text", 4}));
        QCOMPARE(proposalText({.text = u"text"_s}, {.kind = Value, .attribute = "type"}, "", ""),
                 (ProposalText{"\"text\"", 6}));
        QCOMPARE(inserted(File, u"pic/"_s), (ProposalText{"pic/", 4, true}));
        QCOMPARE(inserted(File, u"a b%ä.png"_s), (ProposalText{"a%20b%25\xc3\xa4.png", 14}));
        QCOMPARE(inserted(Entity, u"amp"_s), (ProposalText{"amp;", 4}));
        QCOMPARE(inserted(Entity, u"amp"_s, "", ";"), (ProposalText{"amp", 3}));
        QCOMPARE(inserted(Property, u"color"_s), (ProposalText{"color: ", 7, true}));
        QCOMPARE(inserted(Property, u"color"_s, "", ": red"), (ProposalText{"color", 5}));
        QCOMPARE(inserted(AtRule, u"@media"_s), (ProposalText{"@media", 6}));
        const CompletionData data{QByteArray(file)};
        const Proposal hidden{.text = u"hidden"_s, .row = data.find('A', "hidden")};
        QCOMPARE(proposalText(hidden, {.kind = Attribute}, "", ""), (ProposalText{"hidden", 6}));
    }

    void since_data()
    {
        QTest::addColumn<QByteArray>("since");
        QTest::addColumn<QString>("text");
        QTest::newRow("all") << QByteArray("2015 C1 E12 FF1 S1.1")
                             << u"In all browsers since 2015: Chrome 1, Edge 12, Firefox 1, Safari 1.1"_s;
        QTest::newRow("some") << QByteArray("S9 C20") << u"Chrome 20, Safari 9"_s;
        QTest::newRow("year") << QByteArray("2020") << u"In all browsers since 2020"_s;
        QTest::newRow("none") << QByteArray() << QString();
        QTest::newRow("unknown") << QByteArray("X1") << QString();
    }

    void since()
    {
        QFETCH(QByteArray, since);
        QTEST(sinceText(since), "text");
    }
};

ZEPHIRA_TEST(TstProposals)

#include "tst_proposals.moc"
