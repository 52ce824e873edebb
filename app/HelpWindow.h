#pragma once

#include <QDialog>

/// The keys of the workbench, on F1.
class THelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit THelpWindow(QWidget* parent = nullptr);
    ~THelpWindow() override;
};
