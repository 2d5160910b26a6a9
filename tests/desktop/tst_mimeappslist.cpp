// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/mimeappslist.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;

namespace {

const QByteArray program = "ours.desktop";
const QByteArray list = "# by hand\n"
                        "[Added Associations]\n"
                        "text/plain=notes.desktop;\n"
                        "\n"
                        "[Default Applications]\n"
                        "text/plain = notes.desktop ; other.desktop\n"
                        "image/png=viewer.desktop;\n"
                        "\n"
                        "[Other]\n"
                        "text/plain=x\n";

} // namespace

class TstMimeAppsList final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyTextStays_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("usual") << list;
        QTest::newRow("without a line end") << QByteArray("[Default Applications]\na=b");
        QTest::newRow("CR LF") << QByteArray("[Default Applications]\r\na=b\r\n\r\n");
        QTest::newRow("binary") << QByteArray("\x00\xff\n=\n[\n\r;", 9);
    }

    void anyTextStays()
    {
        QFETCH(QByteArray, text);
        MimeAppsList read(text);
        QCOMPARE(read.text(), text);
        read.takeOut("text/plain", program);
        QCOMPARE(read.text(), text);
    }

    void defaults()
    {
        const MimeAppsList read(list);
        QCOMPARE(read.defaults("text/plain"), (QList<QByteArray>{"notes.desktop", "other.desktop"}));
        QCOMPARE(read.defaults("image/png"), QList<QByteArray>{"viewer.desktop"});
        QCOMPARE(read.defaults("text"), QList<QByteArray>());
    }

    void thePreferredOneComesFirst()
    {
        MimeAppsList changed(list);
        changed.prefer("image/png", program);
        QCOMPARE(changed.text(),
                 QByteArray(list).replace("image/png=viewer.desktop;", "image/png=ours.desktop;viewer.desktop;"));
        changed.prefer("image/png", program);
        QCOMPARE(changed.defaults("image/png").size(), 2);
        changed.takeOut("image/png", program);
        QCOMPARE(changed.text(), list);
    }

    void aNewEntryEndsItsGroup()
    {
        MimeAppsList changed(list);
        changed.prefer("text/html", program);
        QCOMPARE(changed.text(),
                 QByteArray(list).replace("viewer.desktop;\n", "viewer.desktop;\ntext/html=ours.desktop;\n"));
        changed.takeOut("text/html", program);
        QCOMPARE(changed.text(), list);
    }

    void newGroups()
    {
        MimeAppsList changed("");
        changed.prefer("text/html", program);
        changed.add("text/html", program);
        QCOMPARE(changed.text(),
                 "[Default Applications]\ntext/html=ours.desktop;\n\n"
                 "[Added Associations]\ntext/html=ours.desktop;\n");
        MimeAppsList cut("[Default Applications]\na/b=c.desktop");
        cut.prefer("d/e", program);
        cut.add("d/e", program);
        QCOMPARE(cut.text(),
                 "[Default Applications]\na/b=c.desktop\nd/e=ours.desktop;\n\n"
                 "[Added Associations]\nd/e=ours.desktop;\n");
    }

    void lineEndsAreThoseOfTheList()
    {
        MimeAppsList changed("[Default Applications]\r\na/b=c.desktop;\r\n");
        changed.prefer("a/b", program);
        changed.prefer("d/e", program);
        QCOMPARE(changed.text(), "[Default Applications]\r\na/b=ours.desktop;c.desktop;\r\nd/e=ours.desktop;\r\n");
    }

    void addedBehindTheOthers()
    {
        MimeAppsList changed(list);
        changed.add("text/plain", program);
        changed.add("text/plain", program);
        QCOMPARE(changed.text(),
                 QByteArray(list).replace("[Added Associations]\ntext/plain=notes.desktop;",
                                          "[Added Associations]\ntext/plain=notes.desktop;ours.desktop;"));
    }

    void addedAgainAfterItWasExcluded()
    {
        MimeAppsList changed("[Removed Associations]\na/b=ours.desktop;\n");
        changed.add("a/b", program);
        QCOMPARE(changed.text(), "[Removed Associations]\n\n[Added Associations]\na/b=ours.desktop;\n");
    }

    void takenOutEverywhere()
    {
        MimeAppsList changed(
            "[Default Applications]\na/b=x.desktop;ours.desktop;y.desktop\nc/d=ours.desktop;\n"
            "[Added Associations]\na/b=ours.desktop\n[Removed Associations]\na/b=ours.desktop;z.desktop;\n");
        changed.takeOut("a/b", program);
        QCOMPARE(changed.text(),
                 "[Default Applications]\na/b=x.desktop;y.desktop\nc/d=ours.desktop;\n"
                 "[Added Associations]\n[Removed Associations]\na/b=z.desktop;\n");
    }

    /// Of two entries of a type the first counts, and when it goes, the second does.
    void takenOutOfASecondEntry()
    {
        MimeAppsList changed("[Default Applications]\na/b=ours.desktop;\na/b=ours.desktop;x.desktop\n");
        changed.takeOut("a/b", program);
        QCOMPARE(changed.text(), "[Default Applications]\na/b=x.desktop\n");
    }

    void takenOutOfTheDefaultsAlone()
    {
        MimeAppsList changed("[Default Applications]\na/b=x.desktop;\n[Added Associations]\na/b=x.desktop;\n");
        changed.takeOutOfDefaults("a/b", "x.desktop");
        QCOMPARE(changed.text(), "[Default Applications]\n[Added Associations]\na/b=x.desktop;\n");
    }
};

ZEPHIRA_TEST(TstMimeAppsList)
#include "tst_mimeappslist.moc"
