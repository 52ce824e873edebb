#pragma once

#include "SuiteExport.h"

#include <QVector>
#include <QWidget>

/// A panel whose columns and rows share its size by percent, to the pixel; the first column stands at the
/// right. A child fills the cell that its properties GridColumn and GridRow name (both counted from 0), as a
/// form gives them; a child without them keeps its own place.
class SUITE_EXPORT TGridPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Columns READ Columns WRITE SetColumns)
    Q_PROPERTY(QString Rows READ Rows WRITE SetRows)
    Q_PROPERTY(int Gap READ Gap WRITE SetGap)

public:
    explicit TGridPanel(QWidget* parent = nullptr);
    ~TGridPanel() override;

    /// Percents from the first column on: "60;40". Where they do not make 100 they count as shares.
    QString Columns() const;
    /// Throws std::invalid_argument where the text is no list of numbers above 0.
    void SetColumns(const QString& percents);
    QString Rows() const;
    void SetRows(const QString& percents); ///< as SetColumns, from the top row down
    int Gap() const { return gap_; }
    void SetGap(int pixels); ///< between cells; 0 at first

    /// Makes the control a child of the panel, in a cell.
    void Place(QWidget* control, int column, int row);
    /// The child in a cell; null where there is none.
    QWidget* ControlAt(int column, int row) const;
    /// The area of a cell as it is painted.
    QRect CellRect(int column, int row) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    using TSizeOf = QSize (*)(const QWidget& control);
    QSize RoomFor(TSizeOf sizeOf) const;
    void Arrange();

    QVector<int> columns_{100};
    QVector<int> rows_{100};
    int gap_ = 0;
};
