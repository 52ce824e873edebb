#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QProgressBar;
class TSmartLabel_TRV;

/// Shows how far long work at the start of the program has come, with a button that abandons it. Appears only
/// when the work takes longer than a moment.
class TProgressWindow : public QWidget
{
    Q_OBJECT

public:
    explicit TProgressWindow(const QString& title, QWidget* parent = nullptr);
    ~TProgressWindow() override;

    /// Shows the state and lets the user act; false when he has abandoned the work.
    bool Tell(int percent, const QString& stage);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    TSmartLabel_TRV* stage_;
    QProgressBar* bar_;
    QElapsedTimer sinceStart_;
    bool abandoned_ = false;
};
