// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/icons.h"
#include "commands/iconstates.h"
#include "support/palettes.h"
#include "support/testregistry.h"
#include "widgets/fileicons.h"
#include "widgets/fileimages.h"

#include <QApplication>
#include <QScopeGuard>
#include <QTest>

using namespace zephira;

/// The pictures of files and folders.
class TstFileIcons : public QObject
{
    Q_OBJECT

    /// The colour of the picture's most opaque pixel.
    static QColor inkOf(const QImage &picture)
    {
        QColor ink(Qt::transparent);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor here = picture.pixelColor(x, y);
                if (here.alpha() > ink.alpha())
                    ink = here;
            }
        }
        return ink;
    }

private Q_SLOTS:
    /// On every desktop, selected or not, and also when the desktop changes while they are shown.
    void picturesCanBeSeen()
    {
        const QPalette before = QApplication::palette();
        const auto restore = qScopeGuard([&] { QApplication::setPalette(before); });
        QApplication::setStyle(new IconStates);
        const IconTheme theme(*qApp);
        std::vector<QIcon> icons{folderIcon()};
        for (int number = 1; number <= openFolderImage; ++number)
            icons.push_back(fileIcon(number));
        for (const auto &[name, palette] : desktopPalettes()) {
            QApplication::setPalette(palette);
            for (std::size_t i = 0; i < icons.size(); ++i) {
                for (const int size : {16, 32}) {
                    const QImage normal = icons[i].pixmap(size).toImage();
                    const QImage selected = icons[i].pixmap(QSize(size, size), QIcon::Selected).toImage();
                    const auto place = [&name = name, i] {
                        return QString(QLatin1String(name) + u' ' + QString::number(i)).toUtf8();
                    };
                    QVERIFY2(!normal.isNull() && !selected.isNull(), place().constData());
                    QVERIFY2(shareSeen(normal, palette.color(QPalette::Base)) >= 0.25, place().constData());
                    // Where selected text has little contrast of its own, its pictures have no more.
                    const QColor highlight = palette.color(QPalette::Highlight);
                    const QColor text = palette.color(QPalette::HighlightedText);
                    const bool isText = contrast(inkOf(selected), text) < 1.05;
                    QVERIFY2(isText || shareSeen(selected, highlight) >= 0.25, place().constData());
                }
            }
        }
    }

    void aSelectedFolderIsOpen()
    {
        const IconTheme theme(*qApp);
        const auto look = [](const QIcon &icon, QIcon::Mode mode) {
            return icon.pixmap(QSize(16, 16), mode).toImage();
        };
        const QIcon folder = folderIcon();
        QCOMPARE(look(folder, QIcon::Normal), look(fileIcon(folderImage), QIcon::Normal));
        QCOMPARE(look(folder, QIcon::Selected), look(fileIcon(openFolderImage), QIcon::Selected));
        QVERIFY(look(folder, QIcon::Normal) != look(fileIcon(openFolderImage), QIcon::Normal));
    }
};

ZEPHIRA_TEST(TstFileIcons)
#include "tst_fileicons.moc"
