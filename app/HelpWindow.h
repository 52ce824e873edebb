#pragma once

#include "Page.h"

#include <QDialog>

/// The keys of the page in front and of the window, on F1.
class THelpWindow : public QDialog
{
    Q_OBJECT

public:
    THelpWindow(const QString& pageTitle, const QVector<TKeyHelp>& pageKeys, QWidget* parent = nullptr);
    ~THelpWindow() override;
};
