#pragma once

#include "AdoError.h"
#include "PageReader.h"
#include "QueryThread.h"

/// What a paged list is asked for.
struct ADO_EXPORT TPagedQuery
{
    QString Condition;
    int OrderIndex = 0; ///< place of the order field among the source's fields
    Qt::SortOrder Order = Qt::AscendingOrder;
    bool operator==(const TPagedQuery&) const = default;
};

/// The row to stand on in a new list. Where the list does not hold its key: the row that now stands at the
/// place, or the first one.
struct ADO_EXPORT TStanding
{
    TSortKey Place;
    bool OrAtPlace = true;
};

/// The pages that are wanted but not here, served newest first. A page far from the newest one has been
/// scrolled out of sight and is forgotten.
class ADO_EXPORT TPageQueue
{
public:
    explicit TPageQueue(int reach = 2) : reach_(reach) {}
    void Add(int page);
    void Clear() { pages_.clear(); }
    bool IsEmpty() const { return pages_.isEmpty(); }
    int TakeNewest() { return pages_.takeLast(); }

private:
    int reach_; ///< pages
    QVector<int> pages_;
};

/// Brings the rows of a paged list: one thread for its pages, one for its count, each with its own
/// connection, so that scrolling does not wait for counting. All calls and signals in the owner's thread.
class ADO_EXPORT TPagedLoader : public QObject
{
    Q_OBJECT

public:
    TPagedLoader(TADOConnection& connection, const TPagedSource& source, int pageSize,
                 QObject* parent = nullptr);
    ~TPagedLoader() override;

    /// Abandons everything, ends the threads and forgets the rows; nothing is announced any more.
    void Stop();
    /// Abandons what is under way and reads anew. `keep` is the row to stand on in the new list, else
    /// it is the first one; `reopen` allows to open a lost connection again.
    void Ask(const TPagedQuery& query, const std::optional<TStanding>& keep, bool reopen);

    /// Whether the owner finds out the number of rows and gives it. The places of the pages are then looked
    /// for when it has been given.
    void SetCountIsGiven(bool given);
    /// The number of rows that answer a condition; nothing happens when another has been asked for since.
    void GiveCount(const QString& condition, int count);

    int Count() const { return list_.Count(); }
    bool CountIsExact() const { return list_.CountIsExact(); }
    bool HasRow(int row) const { return list_.HasRow(row); }
    /// The value of a row; asks for its page when it is not here.
    QVariant Value(int row, int field);
    /// Where a row stands; none when it is not here.
    std::optional<TSortKey> Place(int row);
    const TPagedQuery& Shown() const { return shown_; } ///< what the rows answer
    bool FirstFailed() const { return firstFailed_; }
    bool IsBusy() const;

    /// These three sleep until the answer is here, and hand it over themselves: no event is handled
    /// meanwhile.
    bool WaitForFirst(const QDeadlineTimer& deadline);
    bool WaitForRow(int row, const QDeadlineTimer& deadline);
    /// Waits until there is a row more or it is clear that there is none.
    void WaitForMore(const QDeadlineTimer& deadline);

Q_SIGNALS:
    void
    replaced(int row); ///< the rows are those of a new answer; `row` is the place to stand at, -1 for none
    void rowsArrived(int first, int last);
    void countChanged();
    void busyChanged(bool busy);
    void failed(const QString& message, const QString& serverMessage);

private:
    struct TFirstPages
    {
        TPageRows First;
        std::optional<TPageReader::TAround> Around;
    };
    struct TQuestion
    {
        TPagedQuery Query;
        std::shared_ptr<const TPageStatements> Statements;
        std::optional<TStanding> Keep;
        bool Reopen = false;
    };

    std::unique_ptr<TQueryThread> MakeThread(TADOConnection& connection);
    /// A task that opens the connection, runs `work` and turns its errors into a call of `failed`.
    TQueryThread::TTask Task(std::function<TQueryThread::TAnswer(TPageReader& reader)> work,
                             void (TPagedLoader::*fail)(const EADOError& error),
                             const std::shared_ptr<const TPageStatements>& statements, bool reopen);
    static void MakeReady(TADOConnection& connection, bool reopen);
    static TFirstPages ReadFirst(TPageReader& reader, int pageSize, const std::optional<TStanding>& keep);

    void AskFirst(const TQuestion& question);
    void PlanProbe(const TQuestion& question);
    void BeginProbe();
    void TakeProbe(TQuestion question, const QVariantList& keys);
    void BeginGathering(const TQuestion& question);
    void FailProbe(const EADOError& error);
    void ShowFirst(const TQuestion& question, const TFirstPages& pages);
    int PutAround(const TPageReader::TAround& around);
    void FailFirst(const EADOError& error);
    void BeginCount();
    void TakeGivenCount();
    void BeginSurvey();
    void TakeSurvey(const TPageReader::TSurvey& survey);

    void Want(int page);
    void PostReadNext();
    void ReadNext();
    bool NextWanted(int* page);
    void TakePage(int page, const TPagePlan& plan, const TPageRows& rows);
    void FailPage(const EADOError& error);
    bool WaitForAnswer(const QDeadlineTimer& deadline);
    bool TakeProbeAnswer();

    void AnnounceBusy();
    void Fail(const EADOError& error);

    TPagedSource source_;
    int pageSize_;
    TPagedQuery shown_;
    std::shared_ptr<const TPageStatements> statements_;
    TPagedList list_;
    TPageQueue queue_;
    bool growWanted_ = false; ///< rows near the end have been seen, so that the page behind them is wanted
    bool firstPending_ = false;
    bool firstFailed_ = false;
    bool pagesStopped_ = false; ///< a page failed; painting would ask for it, and say so, without an end
    bool readPosted_ = false;
    bool busyAnnounced_ = false;
    bool countIsGiven_ = false;
    TPagedQuery asked_;
    std::optional<int> givenCount_;  ///< of the rows that answer what was asked last
    std::optional<TQuestion> probe_; ///< waits for its time
    QTimer probeTimer_;
    // Last, so that the threads end before what their answers write to.
    std::unique_ptr<TQueryThread> pageThread_;
    std::unique_ptr<TQueryThread> countThread_;
};
