#pragma once

#include "Frame.h"
#include "TarvaSearch.h"

class TTabControl;

/// The items of a criterion as tabs; the chosen tab filters by the fixed value of its item, a value of 0 too.
///
/// The owner fills TarvaSearch_Tab.SearchItems and calls init().
class BASEFRAME_EXPORT TTab_Search_Frame : public TFrame
{
    Q_OBJECT

public:
    explicit TTab_Search_Frame(QWidget* owner = nullptr);
    ~TTab_Search_Frame() override;

    /// Replaces the tabs by the criterion's items and switches it on; without items there are no tabs and the
    /// criterion stays as it is.
    void init();
    void Loaded() override;
    /// The choice of a tab.
    void Search_TBCChange(QObject* Sender) const;

    TTabControl* Search_TBC = nullptr;
    TTarvaSearch* TarvaSearch_Tab = nullptr;
};
