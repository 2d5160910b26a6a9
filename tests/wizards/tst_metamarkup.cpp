// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"
#include "wizards/fieldtemplate.h"
#include "wizards/metamarkup.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

/// The four meta tags, compared as whole texts.
class TstMetaMarkup final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tags_data()
    {
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QStringList{{}, {}, {}, {}}
                                 << u"<META NAME=\"description\" content=\"\"> \r\n"
                                    "<META NAME=\"keywords\" content=\"\">\r\n"
                                    "<META NAME=\"author\" content=\"\">\r\n"
                                    "<META NAME=\"Copyright\" content=\"\">"_s;
        QTest::newRow("everything") << QStringList{u"A shop"_s, u"tea, pots"_s, u"Me"_s, u"2002"_s}
                                    << u"<META NAME=\"description\" content=\"A shop\"> \r\n"
                                       "<META NAME=\"keywords\" content=\"tea, pots\">\r\n"
                                       "<META NAME=\"author\" content=\"Me\">\r\n"
                                       "<META NAME=\"Copyright\" content=\"2002\">"_s;
        QTest::newRow("quotes, marks and line breaks stay")
            << QStringList{u"a\r\n\"b\""_s, u"<ü>"_s, u"&"_s, u"\U0001F600"_s}
            << u"<META NAME=\"description\" content=\"a\r\n\"b\"\"> \r\n"
               "<META NAME=\"keywords\" content=\"<ü>\">\r\n"
               "<META NAME=\"author\" content=\"&\">\r\n"
               "<META NAME=\"Copyright\" content=\"\U0001F600\">"_s;
    }

    void tags()
    {
        QFETCH(QStringList, fields);
        QTEST(metaMarkup({fields[0], fields[1], fields[2], fields[3]}), "text");
    }

    void anyFieldsFillTheTemplate()
    {
        QRandomGenerator random(7401);
        for (int i = 0; i < 2000; ++i) {
            const QStringList f = generatedFields(random, 4);
            QCOMPARE(metaMarkup({f[0], f[1], f[2], f[3]}),
                     filled(u"<META NAME='description' content='①'> \n<META NAME='keywords' content='②'>\n"
                            "<META NAME='author' content='③'>\n<META NAME='Copyright' content='④'>"_s,
                            f));
        }
    }
};

ZEPHIRA_TEST(TstMetaMarkup)

#include "tst_metamarkup.moc"
