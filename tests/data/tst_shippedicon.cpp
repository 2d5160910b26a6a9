// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/testregistry.h"

#include <QFile>
#include <QTest>
#include <QtEndian>

namespace {

template<typename Number>
Number numberAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromLittleEndian<Number>(bytes.sliced(offset, sizeof(Number)).constData());
}

} // namespace

/// The icon that the build makes for the files that the program opens.
class TstShippedIcon final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesInTheUsualSizes()
    {
        QFile file(QStringLiteral(ZEPHIRA_ICON));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray icon = file.readAll();
        QCOMPARE(icon.first(4), QByteArray("\0\0\1\0", 4));
        const QList<int> sides{16, 24, 32, 48, 64, 128, 256};
        QCOMPARE(numberAt<quint16>(icon, 4), static_cast<quint16>(sides.size()));
        qsizetype end = 6 + 16 * sides.size();
        for (qsizetype i = 0; i < sides.size(); ++i) {
            const QByteArray entry = icon.mid(6 + 16 * i, 16);
            const int side = sides[i];
            QCOMPARE(static_cast<quint8>(entry[0]), static_cast<quint8>(side));
            QCOMPARE(static_cast<quint8>(entry[1]), static_cast<quint8>(side));
            const qsizetype size = numberAt<quint32>(entry, 8);
            QCOMPARE(static_cast<qsizetype>(numberAt<quint32>(entry, 12)), end);
            const QByteArray picture = icon.mid(end, size);
            QCOMPARE(picture.size(), size);
            if (picture.startsWith("\x89PNG")) {
                QCOMPARE(qFromBigEndian<quint32>(picture.constData() + 16), static_cast<quint32>(side));
            } else {
                QCOMPARE(numberAt<quint32>(picture, 0), quint32{40});
                QCOMPARE(numberAt<qint32>(picture, 4), side);
                QCOMPARE(numberAt<qint32>(picture, 8), 2 * side);
                // Transparent at the corner, and the program's blue to the left of the brackets.
                QCOMPARE(numberAt<quint32>(picture, 40) >> 24, quint32{0});
                const quint32 pixel =
                    numberAt<quint32>(picture, 40 + 4 * (static_cast<qsizetype>(side) * side / 2 + 1));
                QVERIFY((pixel & 0xff) > ((pixel >> 16) & 0xff));
            }
            end += size;
        }
        QCOMPARE(icon.size(), end);
    }
};

ZEPHIRA_TEST(TstShippedIcon)
#include "tst_shippedicon.moc"
