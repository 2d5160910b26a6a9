// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fakes.h"
#include "support/testregistry.h"
#include "widgets/keptpictures.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace zephira;

namespace {

/// A style that provides an icon cache.
struct LendingStyle final : QProxyStyle {
    IconPictures *pictures = nullptr;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *answer) const override
    {
        if (hint != IconPicturesHint::question)
            return QProxyStyle::styleHint(hint, option, widget, answer);
        static_cast<IconPicturesHint *>(answer)->pictures = pictures;
        return 1;
    }
};

QPixmap plain(QSize size, const QColor &colour)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

QColor middleOf(const QPixmap &pixmap)
{
    return pixmap.toImage().pixelColor(pixmap.width() / 2, pixmap.height() / 2);
}

} // namespace

class TstKeptPictures : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    MemoryFileStore m_files;
    LendingStyle *m_style = new LendingStyle;

    QString file() const { return m_folder.filePath(u"cache/icons"_s); }
    std::unique_ptr<KeptPictures> run() { return std::make_unique<KeptPictures>(m_files, file(), u"/program"_s); }

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(m_style);
        QIcon::setThemeSearchPaths(QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"icons"_s,
                                                             QStandardPaths::LocateDirectory));
    }

    void init()
    {
        m_files.contents.clear();
        m_files.contents[u"/program"_s] = "one";
        m_style->pictures = nullptr;
        QIcon::setThemeName(u"breeze"_s);
    }

    void cleanupTestCase() { m_style->pictures = nullptr; }

    void thePicturesOfARunAreThereInTheNext()
    {
        run()->keep(u"edit-copy"_s, {22, 22}, 1, plain({22, 22}, Qt::red));
        const auto next = run();
        QVERIFY(next->knows(u"edit-copy"_s));
        QVERIFY(!next->knows(u"edit-cut"_s));
        const QPixmap picture = next->find(u"edit-copy"_s, {22, 22}, 1);
        QCOMPARE(picture.size(), QSize(22, 22));
        QCOMPARE(middleOf(picture), QColor(Qt::red));
        QVERIFY(next->find(u"edit-copy"_s, {16, 16}, 1).isNull());
        QVERIFY(next->find(u"edit-copy"_s, {22, 22}, 2).isNull());
    }

    void anotherProgramDrawsAnew()
    {
        run()->keep(u"edit-copy"_s, {22, 22}, 1, plain({22, 22}, Qt::red));
        m_files.contents[u"/program"_s] = "another";
        QVERIFY(!run()->knows(u"edit-copy"_s));
    }

    void eachThemeHasItsOwn()
    {
        const auto pictures = run();
        pictures->keep(u"edit-copy"_s, {22, 22}, 1, plain({22, 22}, Qt::black));
        QIcon::setThemeName(u"breeze-dark"_s);
        QVERIFY(!pictures->knows(u"edit-copy"_s));
        pictures->keep(u"edit-copy"_s, {22, 22}, 1, plain({22, 22}, Qt::white));
        QIcon::setThemeName(u"breeze"_s);
        QCOMPARE(middleOf(pictures->find(u"edit-copy"_s, {22, 22}, 1)), QColor(Qt::black));
    }

    void aDamagedFileHoldsNothing()
    {
        run()->keep(u"edit-copy"_s, {22, 22}, 1, plain({22, 22}, Qt::red));
        const QString path = file() + u"-breeze"_s;
        const QByteArray whole = m_files.contents[path];
        QVERIFY(!whole.isEmpty());
        for (qsizetype length = 0; length < whole.size(); length += 37) {
            m_files.contents[path] = whole.left(length);
            QVERIFY(!run()->knows(u"edit-copy"_s));
        }
        m_files.contents[path] = whole + "x";
        QVERIFY(!run()->knows(u"edit-copy"_s));
        m_files.contents[path] = QByteArray(whole.size(), '\xff');
        QVERIFY(!run()->knows(u"edit-copy"_s));
    }

    void anIconIsDrawnOnceForAllRuns()
    {
        int drawn = 0;
        const auto make = [&drawn] {
            ++drawn;
            return QIcon(plain({32, 32}, Qt::green));
        };
        for (int start = 0; start < 3; ++start) {
            const auto pictures = run();
            m_style->pictures = pictures.get();
            const QIcon icon = keptIcon(u"own"_s, make);
            QCOMPARE(middleOf(icon.pixmap(16, 16)), QColor(Qt::green));
            QVERIFY(!icon.isNull());
            QCOMPARE(icon.actualSize({16, 16}), QSize(16, 16));
            QCOMPARE(drawn, 1);
            m_style->pictures = nullptr;
        }
    }

    void aPictureOfTheThemeIsTheSameInTheNextRun()
    {
        const auto first = run();
        m_style->pictures = first.get();
        const QImage before = themeIcon(u"edit-copy"_s).pixmap(22, 22).toImage();
        QVERIFY(!before.isNull());
        m_style->pictures = nullptr;
        first->save();

        const auto second = run();
        m_style->pictures = second.get();
        QVERIFY(second->knows(u"edit-copy"_s));
        const QIcon icon = themeIcon(u"edit-copy"_s);
        QCOMPARE(icon.name(), u"edit-copy"_s);
        QCOMPARE(icon.pixmap(22, 22).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 before.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }

    void withoutPicturesAnIconIsTheThemes()
    {
        QCOMPARE(themeIcon(u"edit-copy"_s).pixmap(22, 22).toImage(),
                 QIcon::fromTheme(u"edit-copy"_s).pixmap(22, 22).toImage());
        QVERIFY(themeIcon(u"no icon of that name"_s).isNull());
    }
};

ZEPHIRA_TEST(TstKeptPictures)
#include "tst_keptpictures.moc"
