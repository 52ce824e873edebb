#pragma once

#include <QTest>
#include <QWidget>

/// What the tests of all combinations share: kinds of items, and a row for each way to reach a state.
enum TFilterKind { DataSetKind, QueryKind, OtherKind };

namespace FilterMatrix {

inline void Click(QWidget* control)
{
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, control->rect().center());
}

/// One row for each maker (a pair that begins with its name), kind of item, and for box and label both of the
/// switch and of "not".
template <typename TMakers> void AddRows(const TMakers& makers)
{
    QTest::addColumn<int>("frame");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("byLabel");
    QTest::addColumn<bool>("reverseByLabel");
    for (size_t frame = 0; frame < std::size(makers); ++frame) {
        for (const int kind : {DataSetKind, QueryKind, OtherKind}) {
            for (const bool byLabel : {false, true}) {
                for (const bool reverseByLabel : {false, true})
                    QTest::addRow("%s, item kind %d, %s, reverse %s", makers[frame].first, kind,
                                  byLabel ? "caption" : "box", reverseByLabel ? "label" : "box")
                        << static_cast<int>(frame) << kind << byLabel << reverseByLabel;
            }
        }
    }
}

} // namespace FilterMatrix
