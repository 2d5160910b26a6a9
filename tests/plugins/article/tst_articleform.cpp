// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/article/articleform.h"
#include "support/testregistry.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace zephira;

class TstArticleForm final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFormAsItOpens()
    {
        ArticleForm form(nullptr);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QCOMPARE(form.windowTitle(), u"Article Page"_s);
        QCOMPARE(form.windowModality(), Qt::ApplicationModal);
        QCOMPARE(form.focusWidget()->objectName(), u"txtTitle"_s);
        QCOMPARE(form.article().language, u"en"_s);
        QCOMPARE(get<QLabel>(form, u"lblLanguageName"_s).text(), u"English"_s);
        QVERIFY(!get<QPushButton>(form, u"cmdOK"_s).isEnabled());
    }

    void theTabKey()
    {
        ArticleForm form(nullptr);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        get<QLineEdit>(form, u"txtTitle"_s).setText(u"Title"_s);
        for (const QString &next : {u"cboLanguage"_s, u"txtDescription"_s, u"cmdOK"_s, u"cmdCancel"_s, u"txtTitle"_s}) {
            QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
            QCOMPARE(form.focusWidget()->objectName(), next);
        }
    }

    void whatIsMissingClosesTheButton_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("open");
        QTest::newRow("all there") << u"Bees"_s << u"de"_s << true;
        QTest::newRow("typed language") << u"Bees"_s << u"pt-BR"_s << true;
        QTest::newRow("no title") << u" "_s << u"de"_s << false;
        QTest::newRow("no language") << u"Bees"_s << u""_s << false;
        QTest::newRow("no tag") << u"Bees"_s << u"<de>"_s << false;
    }

    void whatIsMissingClosesTheButton()
    {
        QFETCH(QString, title);
        QFETCH(QString, language);
        ArticleForm form(nullptr);
        get<QLineEdit>(form, u"txtTitle"_s).setText(title);
        get<QComboBox>(form, u"cboLanguage"_s).setCurrentText(language);
        QTEST(get<QPushButton>(form, u"cmdOK"_s).isEnabled(), "open");
    }

    void whatIsEntered()
    {
        ArticleForm form(nullptr);
        get<QLineEdit>(form, u"txtTitle"_s).setText(u"Bees"_s);
        get<QComboBox>(form, u"cboLanguage"_s).setCurrentText(u"fr"_s);
        get<QPlainTextEdit>(form, u"txtDescription"_s).setPlainText(u"One\ntwo"_s);
        QCOMPARE(get<QLabel>(form, u"lblLanguageName"_s).text(), u"French"_s);
        const Article article = form.article();
        QCOMPARE(article.title, u"Bees"_s);
        QCOMPARE(article.language, u"fr"_s);
        QCOMPARE(article.description, u"One\ntwo"_s);
        get<QPushButton>(form, u"cmdOK"_s).click();
        QCOMPARE(form.result(), static_cast<int>(QDialog::Accepted));
    }

    void eachControlHasALabelOrATip()
    {
        ArticleForm form(nullptr);
        for (const QString &name : {u"txtTitle"_s, u"cboLanguage"_s, u"txtDescription"_s})
            QVERIFY2(!get<QWidget>(form, name).toolTip().isEmpty(), qPrintable(name));
        const QList<QLabel *> labels = form.findChildren<QLabel *>();
        QCOMPARE(std::ranges::count_if(labels, [](const QLabel *label) { return label->buddy() != nullptr; }), 3);
    }

private:
    template<typename T>
    static T &get(const ArticleForm &form, const QString &name)
    {
        T *control = form.findChild<T *>(name);
        if (!control)
            qFatal("no control is named %s", qPrintable(name));
        return *control;
    }
};

ZEPHIRA_TEST(TstArticleForm)
#include "tst_articleform.moc"
