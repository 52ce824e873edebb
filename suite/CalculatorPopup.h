#pragma once

#include "Calculator.h"
#include "SuiteExport.h"

#include <functional>
#include <QFrame>

class QGridLayout;
class QLabel;

/// The calculator under an edit. Enter takes the result, Escape and a click elsewhere leave the edit as it
/// was.
class SUITE_EXPORT TCalculatorPopup : public QFrame
{
    Q_OBJECT

public:
    /// Takes the result over; answers with a sentence why not, or with nothing where it did.
    using TTake = std::function<QString(const QString& result)>;

    TCalculatorPopup(QWidget* edit, const QString& number, TTake take);

    /// Below the edit, or above it where there is no room.
    void Open();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* MakeDisplay();
    void AddKey(QGridLayout& grid, int row, int column, const QString& caption, const QString& name,
                std::function<void()> press, int columns = 1);
    void AddCharacterKey(QGridLayout& grid, int row, int column, QChar key, const QString& name);
    void AddKeys(QGridLayout& grid);
    void Press(QChar key);
    void Accept();
    void Leave();
    void Refresh();

    QWidget* edit_;
    TTake take_;
    TCalculator calculator_;
    QString refusal_;
    QLabel* pending_ = nullptr;
    QLabel* number_ = nullptr;
    QLabel* message_ = nullptr;
};
