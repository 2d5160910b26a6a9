// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/errorstyles.h"
#include "plugins/latebound.h"
#include "support/testregistry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// Members of every sort.
class Sample : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER m_text)
    Q_PROPERTY(int number MEMBER m_number)
    Q_PROPERTY(bool truth READ truth)
    Q_PROPERTY(QObject *object READ object)
    Q_PROPERTY(QString both READ both)

public:
    bool truth() const { return true; }
    QObject *object() const { return nullptr; }
    QString both() const { return u"property"_s; }

    Q_INVOKABLE QString called() const { return u"called"_s; }
    Q_INVOKABLE QVariant variant() const { return 7; }
    Q_INVOKABLE double half() const { return 0.5; }
    Q_INVOKABLE void nothing() { ++m_calls; }
    Q_INVOKABLE QString withDefault(const QString &word = u"word"_s) const { return word; }
    Q_INVOKABLE QString needsOne(int) const { return u"one"_s; }
    Q_INVOKABLE int throwsNumber() { throw 5; }
    Q_INVOKABLE QString leaves()
    {
        delete this;
        return u"last words"_s;
    }
    int notListed() { return 1; }

    int m_calls = 0;

private:
    QString m_text = u"a text"_s;
    int m_number = 42;
};

} // namespace

class TstLateBound final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data()
    {
        QTest::addColumn<QByteArray>("member");
        QTest::addColumn<QString>("text");
        QTest::newRow("property") << QByteArray("text") << u"a text"_s;
        QTest::newRow("number as text") << QByteArray("number") << u"42"_s;
        QTest::newRow("function") << QByteArray("called") << u"called"_s;
        QTest::newRow("function that gives a variant") << QByteArray("variant") << u"7"_s;
        QTest::newRow("function with a default") << QByteArray("withDefault") << u"word"_s;
        QTest::newRow("function without a result") << QByteArray("nothing") << u""_s;
        QTest::newRow("dynamic property") << QByteArray("added") << u"later"_s;
        QTest::newRow("missing") << QByteArray("missing") << u"The member missing can't be read."_s;
        QTest::newRow("other letters") << QByteArray("Text") << u"The member Text can't be read."_s;
        QTest::newRow("with an argument") << QByteArray("needsOne") << u"The member needsOne can't be read."_s;
        QTest::newRow("not invokable") << QByteArray("notListed") << u"The member notListed can't be read."_s;
        QTest::newRow("not a text") << QByteArray("object") << u"The member object isn't a text."_s;
        QTest::newRow("throws") << QByteArray("throwsNumber") << u"The module has raised an error."_s;
        QTest::newRow("empty name") << QByteArray("") << u"The member  can't be read."_s;
    }

    void texts()
    {
        QFETCH(QByteArray, member);
        const LateBound sample(makeSample());
        QString text;
        endingWith([&text](const QString &description) { text = description; }, [&] { text = sample.text(member); });
        QTEST(text, "text");
    }

    void numbers_data()
    {
        QTest::addColumn<QByteArray>("member");
        QTest::addColumn<QString>("number");
        QTest::newRow("property") << QByteArray("number") << u"42"_s;
        QTest::newRow("truth") << QByteArray("truth") << u"1"_s;
        QTest::newRow("variant") << QByteArray("variant") << u"7"_s;
        QTest::newRow("fraction") << QByteArray("half") << u"1"_s;
        QTest::newRow("nothing") << QByteArray("nothing") << u"0"_s;
        QTest::newRow("text") << QByteArray("text") << u"The member text isn't a number."_s;
        QTest::newRow("missing") << QByteArray("missing") << u"The member missing can't be read."_s;
    }

    void numbers()
    {
        QFETCH(QByteArray, member);
        const LateBound sample(makeSample());
        QString number;
        endingWith([&number](const QString &description) { number = description; },
                   [&] { number = QString::number(sample.number(member)); });
        QTEST(number, "number");
    }

    void aFunctionIsCalledOnceForEachRead()
    {
        auto *object = new Sample;
        const LateBound sample(object);
        QCOMPARE(sample.number("nothing"), 0);
        QCOMPARE(object->m_calls, 1);
        QCOMPARE(sample.text("nothing"), QString());
        QCOMPARE(object->m_calls, 2);
    }

    void anObjectThatDeletesItself()
    {
        const LateBound sample(new Sample);
        QVERIFY(sample.isAlive());
        QCOMPARE(sample.text("leaves"), u"last words"_s);
        QVERIFY(!sample.isAlive());
        QString failure;
        endingWith([&failure](const QString &description) { failure = description; }, [&] { sample.text("text"); });
        QCOMPARE(failure, u"The member text has no object any more."_s);
    }

    void theObjectIsDeletedUnlessItHasAParent()
    {
        QPointer<QObject> object = new Sample;
        {
            const LateBound sample(object);
        }
        QVERIFY(!object);
        QObject parent;
        object = new Sample;
        object->setParent(&parent);
        {
            const LateBound sample(object);
        }
        QVERIFY(object);
    }

private:
    static QObject *makeSample()
    {
        auto *sample = new Sample;
        sample->setProperty("added", u"later"_s);
        return sample;
    }
};

ZEPHIRA_TEST(TstLateBound)
#include "tst_latebound.moc"
