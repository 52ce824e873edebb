#pragma once

#include "PackageExport.h"

#include <QWidget>

/// What every frame derives from, directly: a right-to-left widget that an owner form places and configures.
class BASEFRAME_EXPORT TFrame : public QWidget
{
    Q_OBJECT

public:
    /// Throws std::logic_error where no host is installed.
    explicit TFrame(QWidget* owner = nullptr);
    ~TFrame() override;

    /// Runs once, after the form description is set up and before the frame is first shown. An override calls
    /// the inherited one first.
    virtual void Loaded();
    /// The frame's window is shown and no parent of the frame is hidden.
    bool Showing() const;

protected:
    /// Called by a frame's constructor when its form is set up; runs Loaded() from the event loop or at the
    /// first showing, whichever comes first.
    void FormReady();
    bool event(QEvent* event) override;

private:
    bool formIsReady_ = false;
};
