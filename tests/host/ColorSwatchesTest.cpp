#include "ColorSwatches.h"

#include "HostTestMain.h"

#include <QSignalSpy>

class ColorSwatchesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        swatches_ = std::make_unique<TColorSwatches>();
        swatches_->setLayoutDirection(Qt::RightToLeft);
        QVector<QColor> colors;
        for (int index = 0; index < 14; ++index)
            colors.append(QColor::fromHsv(index * 25, 200, 200));
        colors[3] = Qt::red;
        swatches_->SetColors(colors);
        swatches_->resize(swatches_->sizeHint());
        swatches_->show();
    }

    void theFirstColourStandsAtTheRightAndIsChosen()
    {
        QCOMPARE(swatches_->Current(), 0);
        QVERIFY(swatches_->SwatchRect(0).left() > swatches_->SwatchRect(1).right());
        QCOMPARE(swatches_->SwatchRect(0).top(), swatches_->SwatchRect(8).top());
        QVERIFY(swatches_->SwatchRect(9).top() > swatches_->SwatchRect(0).bottom());
        QVERIFY(swatches_->rect().contains(swatches_->SwatchRect(13)));
    }

    void theArrowsAreMirrored_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("to");
        QTest::newRow("left is forward") << 3 << int(Qt::Key_Left) << 4;
        QTest::newRow("right is back") << 3 << int(Qt::Key_Right) << 2;
        QTest::newRow("right at the beginning") << 0 << int(Qt::Key_Right) << 0;
        QTest::newRow("left at the end") << 13 << int(Qt::Key_Left) << 13;
        QTest::newRow("left goes on to the next row") << 8 << int(Qt::Key_Left) << 9;
        QTest::newRow("down") << 2 << int(Qt::Key_Down) << 11;
        QTest::newRow("down where there is nothing") << 7 << int(Qt::Key_Down) << 7;
        QTest::newRow("up") << 11 << int(Qt::Key_Up) << 2;
        QTest::newRow("home") << 5 << int(Qt::Key_Home) << 0;
        QTest::newRow("end") << 5 << int(Qt::Key_End) << 13;
    }

    void theArrowsAreMirrored()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(int, to);
        swatches_->SetCurrent(from);
        QSignalSpy changes(swatches_.get(), &TColorSwatches::currentChanged);
        QTest::keyClick(swatches_.get(), static_cast<Qt::Key>(key));
        QCOMPARE(swatches_->Current(), to);
        QCOMPARE(changes.count(), from == to ? 0 : 1);
    }

    void aClickChoosesAndAClickBesideDoesNot()
    {
        const QPoint between(swatches_->SwatchRect(3).left() - 2, swatches_->SwatchRect(3).center().y());
        QTest::mouseClick(swatches_.get(), Qt::LeftButton, Qt::NoModifier, swatches_->SwatchRect(3).center());
        QCOMPARE(swatches_->Current(), 3);
        QTest::mouseClick(swatches_.get(), Qt::LeftButton, Qt::NoModifier, between);
        QTest::mouseClick(swatches_.get(), Qt::RightButton, Qt::NoModifier,
                          swatches_->SwatchRect(5).center());
        QCOMPARE(swatches_->Current(), 3);
    }

    void aColourIsToldByItsNameToo()
    {
        swatches_->SetCurrent(3);
        QCOMPARE(swatches_->accessibleName(), QStringLiteral("رنگ قرمز"));
        QCOMPARE(TColorSwatches::NameOf(QColor(0, 0, 250)), QStringLiteral("آبی"));
    }

    void withoutColoursNothingIsChosen()
    {
        TColorSwatches none;
        QTest::keyClick(&none, Qt::Key_Down);
        QTest::keyClick(&none, Qt::Key_End);
        QCOMPARE(none.Current(), -1);
        QVERIFY(!none.grab().isNull());
    }

    void eachColourIsPainted()
    {
        const QImage picture = swatches_->grab().toImage();
        QCOMPARE(picture.pixelColor(swatches_->SwatchRect(3).center()), QColor(Qt::red));
    }

private:
    std::unique_ptr<TColorSwatches> swatches_;
};

int main(int argc, char** argv)
{
    return RunUnderHostApplication<ColorSwatchesTest>(argc, argv);
}
#include "ColorSwatchesTest.moc"
