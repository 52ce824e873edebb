#pragma once

#include "PackageExport.h"
#include "TarvaSearch.h"

#include <functional>
#include <memory>
#include <QObject>

class TADOQuery;
class TDataSet;
class TPagedDataSet;

/// Collects the criteria of a form and turns the active ones into one condition. The one place where values
/// become conditions, so the one place that quotes: nothing a user types leaves its literal. Texts are
/// compared as a Persian reader does (ی/ي, ک/ك, digits of all scripts, ZWNJ and kashida make no difference),
/// on every engine alike. Rebuilds once per burst of changes; reading the condition or the data set brings it
/// up to date at once.
class BASEFRAME_EXPORT TTarvaSearchManager : public QObject
{
    Q_OBJECT

public:
    explicit TTarvaSearchManager(QObject* parent = nullptr);
    ~TTarvaSearchManager() override;

    void Add(TTarvaSearch* criterion);    ///< not owned; a destroyed criterion leaves by itself
    void Remove(TTarvaSearch* criterion); ///< one that was not added is left alone

    /// The data set that is filtered; not owned. A paged list gets the whole condition in its statements; a
    /// client cursor gets iftQuery items through `conditionChanged` (its owner writes the statement) and the
    /// others as a row filter.
    void SetDataSet(TPagedDataSet* dataSet);
    void SetDataSet(TADOQuery* dataSet);
    /// The filtered data set, up to date with every criterion; null where none is set.
    TDataSet* DataSet();

    /// WHERE text of all active irSQL items, without the word; empty where nothing filters. T-SQL.
    QString Condition();
    /// The same for the items of one filter type.
    QString Condition(TSearchFilterType filterType);
    /// The condition as a Persian sentence; empty where nothing filters.
    QString ConditionInWords();

    /// Called for an active criterion whose item is irProc, on every rebuild; the owner does the filtering.
    using TSearchProc = std::function<void(TTarvaSearch* Criterion)>;
    void SetSearchProc(TSearchProc proc);

    /// Applies pending changes now.
    void Flush();

Q_SIGNALS:
    /// The text that belongs into the owner's statement is another one: the condition of the iftQuery items
    /// where a client cursor is filtered, else the whole condition.
    void conditionChanged(const QString& condition);
    /// The condition and its words are up to date with every criterion; comes once per burst of changes.
    void rebuilt();

private:
    void Invalidate();
    void Forget(const TTarvaSearch* criterion);
    void CallSearchProc();
    void ApplyCondition();

    struct TPrivate;
    std::unique_ptr<TPrivate> d;
};
