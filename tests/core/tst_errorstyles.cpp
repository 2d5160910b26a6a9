// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "support/scriptedprompts.h"
#include "support/testregistry.h"

#include <QTest>

using namespace zephira;
using namespace Qt::StringLiterals;

class TstErrorStyles final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ignoringGoesOn()
    {
        QStringList done;
        ignoringErrors(
            {[&] { done.append(u"a"_s); }, [] { throw HandlerError{u"lost"_s}; }, [&] { done.append(u"b"_s); }});
        QCOMPARE(done, (QStringList{u"a"_s, u"b"_s}));
    }

    void endingQuietlyTellsTheCallerAlone()
    {
        QVERIFY(endingQuietly([] {}));
        bool reached = false;
        QVERIFY(!endingQuietly([&] {
            orRaise(Result<void>(Error{Error::Code::Failed, u"lost"_s}));
            reached = true;
        }));
        QVERIFY(!reached);
    }

    void endingWithHandsOverTheDescription()
    {
        QStringList told;
        const auto tell = [&](const QString &description) { told.append(description); };
        QVERIFY(endingWith(tell, [] {}));
        QVERIFY(told.isEmpty());
        bool reached = false;
        QVERIFY(!endingWith(tell, [&] {
            orRaise(Result<void>(Error{Error::Code::Failed, u"lost"_s}));
            reached = true;
        }));
        QCOMPARE(told, QStringList{u"lost"_s});
        QVERIFY(!reached);
    }

    void aValueComesThrough()
    {
        QCOMPARE(orRaise(Result<int>(7)), 7);
        QCOMPARE(*orRaise(Result<std::unique_ptr<int>>(std::make_unique<int>(8))), 8);
        orRaise(Result<void>());
    }

    void anErrorIsRaisedWithItsSentence()
    {
        QString raised;
        try {
            orRaise(Result<int>(Error{Error::Code::NotFound, u"There is no such thing"_s}));
        } catch (const HandlerError &error) {
            raised = error.description;
        }
        QCOMPARE(raised, u"There is no such thing"_s);
    }

    void anErrorIsTold()
    {
        ScriptedPrompts prompts;
        const Error error{Error::Code::Unwritable, u"It can't be written"_s};
        prompts.expectTell(u"It can't be written"_s, {}, Question::Icon::Exclamation);
        tellError(prompts, error);
        prompts.expectTell(u"It can't be written"_s, u"Table Wizard"_s, Question::Icon::Critical);
        tellError(prompts, error, u"Table Wizard"_s, Question::Icon::Critical);
        QVERIFY(prompts.verify());
    }
};

ZEPHIRA_TEST(TstErrorStyles)

#include "tst_errorstyles.moc"
