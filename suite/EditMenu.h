#pragma once

#include <functional>

class QLineEdit;
class QMenu;

/// What the context menu of a one-line edit does, and what of it can be done now.
struct TEditCommands
{
    std::function<void()> Undo;
    std::function<void()> Redo;
    std::function<void()> Cut;
    std::function<void()> Copy;
    std::function<void()> Paste;
    std::function<void()> Delete;
    std::function<void()> SelectAll; ///< where it is more than the line's own
    bool CanUndo = false;
    bool CanRedo = false;
    bool CanChange = false;
    bool CanPaste = false;
    bool HasSelection = false; ///< beside what is selected in the line
};

namespace EditMenu {

/// A right-to-left menu that is destroyed when it closes.
QMenu* Create(QLineEdit* edit, const TEditCommands& commands);

} // namespace EditMenu
