#include "PagedLoader.h"

#include <algorithm>
#include <QPointer>

void TPageQueue::Add(int page)
{
    pages_.removeIf([this, page](int other) { return other == page || qAbs(other - page) > reach_; });
    pages_.append(page);
}

namespace {

// Rows that one window shows at most; pages further apart than that are not wanted together.
constexpr int rowsInSight = 200;
// As many keys as fit into one statement of any engine.
constexpr int fewRows = 1000;
constexpr int probeInterval = 20; // milliseconds
// A page that is found sooner costs no second core.
constexpr int probeDelay = 100; // milliseconds

} // namespace

TPagedLoader::TPagedLoader(TADOConnection& connection, const TPagedSource& source, int pageSize,
                           QObject* parent)
    : QObject(parent), source_(source), pageSize_(pageSize), queue_(qMax(1, rowsInSight / pageSize)),
      pageThread_(MakeThread(connection)), countThread_(MakeThread(connection))
{
    list_.Reset(pageSize);
    probeTimer_.setSingleShot(true);
    probeTimer_.setInterval(probeDelay);
    connect(&probeTimer_, &QTimer::timeout, this, &TPagedLoader::BeginProbe);
}

TPagedLoader::~TPagedLoader() = default;

void TPagedLoader::Stop()
{
    probeTimer_.stop();
    pageThread_.reset();
    countThread_.reset();
    statements_.reset();
    queue_.Clear();
    list_.Reset(pageSize_);
    list_.SetCount(0, true);
    growWanted_ = false;
    firstPending_ = false;
    firstFailed_ = true;
}

std::unique_ptr<TQueryThread> TPagedLoader::MakeThread(TADOConnection& connection)
{
    auto thread = std::make_unique<TQueryThread>(connection.Clone());
    connect(thread.get(), &TQueryThread::answered, this, [this, worker = thread.get()] {
        // The call is queued: Stop() may have ended the thread in the meantime.
        if (worker != pageThread_.get() && worker != countThread_.get())
            return;
        if (const TQueryThread::TAnswer answer = worker->TakeAnswer())
            answer();
    });
    return thread;
}

TQueryThread::TTask TPagedLoader::Task(std::function<TQueryThread::TAnswer(TPageReader&)> work,
                                       void (TPagedLoader::*fail)(const EADOError&),
                                       const std::shared_ptr<const TPageStatements>& statements, bool reopen)
{
    return [this, work = std::move(work), fail, statements,
            reopen](TADOConnection& connection) -> TQueryThread::TAnswer {
        try {
            MakeReady(connection, reopen);
            TPageReader reader(connection, *statements);
            return work(reader);
        } catch (const EADOError& error) {
            return [this, fail, error] { (this->*fail)(error); };
        } catch (const std::exception& exception) {
            // Out of memory, or thrown by a registered function: a thread must not end by it.
            const EADOError error(TAdoErrorKind::Other, QStringLiteral("خواندن فهرست ناتمام ماند."), {},
                                  QString::fromLocal8Bit(exception.what()));
            return [this, fail, error] { (this->*fail)(error); };
        }
    };
}

void TPagedLoader::MakeReady(TADOConnection& connection, bool reopen)
{
    if (connection.IsLost() && reopen)
        connection.Reopen();
    else if (!connection.Connected() && !connection.IsLost())
        connection.Open();
}

void TPagedLoader::Ask(const TPagedQuery& query, const std::optional<TStanding>& keep, bool reopen)
{
    const TQuestion question{
        query,
        std::make_shared<const TPageStatements>(source_, query.Condition, query.OrderIndex, query.Order),
        keep, reopen};
    // Another order leaves the number of rows as it is.
    if (reopen || query.Condition != asked_.Condition)
        givenCount_.reset();
    asked_ = query;
    countThread_->Abandon();
    probeTimer_.stop();
    queue_.Clear();
    growWanted_ = false;
    firstPending_ = true;
    firstFailed_ = false;
    AskFirst(question);
    if (question.Statements->HasCondition() && !question.Statements->OrderedByKey())
        PlanProbe(question);
    AnnounceBusy();
}

void TPagedLoader::AskFirst(const TQuestion& question)
{
    const auto work = [this, question, rows = pageSize_](TPageReader& reader) -> TQueryThread::TAnswer {
        return
            [this, question, pages = ReadFirst(reader, rows, question.Keep)] { ShowFirst(question, pages); };
    };
    pageThread_->Begin(Task(work, &TPagedLoader::FailFirst, question.Statements, question.Reopen));
}

// Along the index of an order the first page comes at once where the rows that match stand early in it, and
// takes many times as long as a plain scan where they are few or stand late. So when it does not come soon
// both run at once. The scan begins with some keys: a few are read by themselves, and if there are more the
// rest is gathered.
void TPagedLoader::PlanProbe(const TQuestion& question)
{
    probe_ = question;
    probeTimer_.start();
}

void TPagedLoader::BeginProbe()
{
    probeTimer_.stop();
    if (!firstPending_)
        return;
    const auto work = [this, question = *probe_](TPageReader& reader) -> TQueryThread::TAnswer {
        return [this, question, keys = reader.SomeKeys(fewRows + 1)] { TakeProbe(question, keys); };
    };
    countThread_->Begin(Task(work, &TPagedLoader::FailProbe, probe_->Statements, probe_->Reopen));
}

void TPagedLoader::TakeProbe(TQuestion question, const QVariantList& keys)
{
    if (firstPending_ && keys.isEmpty()) {
        pageThread_->Abandon();
        ShowFirst(question, {});
        return;
    }
    if (firstPending_ && keys.size() <= fewRows) {
        question.Statements = std::make_shared<const TPageStatements>(question.Statements->Narrowed(keys));
        AskFirst(question);
    } else if (firstPending_) {
        BeginGathering(question);
    }
    AnnounceBusy();
}

void TPagedLoader::BeginGathering(const TQuestion& question)
{
    const auto work = [this, question, rows = pageSize_](TPageReader& reader) -> TQueryThread::TAnswer {
        return [this, question, pages = ReadFirst(reader, rows, question.Keep)] {
            pageThread_->Abandon();
            ShowFirst(question, pages);
        };
    };
    const auto gathered = std::make_shared<const TPageStatements>(question.Statements->Gathered());
    countThread_->Begin(Task(work, &TPagedLoader::FailProbe, gathered, question.Reopen));
}

// The reading of the first page along its order tells what is wrong.
void TPagedLoader::FailProbe(const EADOError&)
{
    AnnounceBusy();
}

TPagedLoader::TFirstPages TPagedLoader::ReadFirst(TPageReader& reader, int pageSize,
                                                  const std::optional<TStanding>& keep)
{
    TFirstPages pages;
    pages.First = reader.Read({{}, 0, pageSize});
    if (!keep || pages.First.Count() == 0)
        return pages;
    std::optional<TSortKey> place = reader.Find(keep->Place.Key);
    if (!place && keep->OrAtPlace)
        place = keep->Place;
    if (place)
        pages.Around = reader.ReadAround(*place, pageSize);
    return pages;
}

void TPagedLoader::ShowFirst(const TQuestion& question, const TFirstPages& pages)
{
    firstPending_ = false;
    probeTimer_.stop();
    pagesStopped_ = false;
    shown_ = question.Query;
    statements_ = question.Statements;
    list_.Reset(pageSize_);
    list_.PutPage(0, {{}, 0, pageSize_}, pages.First, *statements_);
    const int row = pages.Around ? PutAround(*pages.Around) : qMin(0, list_.Count() - 1);
    if (list_.CountIsExact())
        countThread_->Abandon();
    else
        BeginCount();
    const QPointer<TPagedLoader> alive(this);
    Q_EMIT replaced(row);
    if (alive)
        AnnounceBusy();
}

int TPagedLoader::PutAround(const TPageReader::TAround& around)
{
    if (around.Row >= pageSize_)
        list_.PutPage(list_.PageOf(around.Row), {{}, 0, pageSize_}, around.Rows, *statements_);
    return qMin(around.Row, list_.Count() - 1);
}

void TPagedLoader::FailFirst(const EADOError& error)
{
    firstPending_ = false;
    probeTimer_.stop();
    firstFailed_ = true;
    if (statements_ && !list_.CountIsExact() && error.Kind() != TAdoErrorKind::ConnectionLost)
        BeginCount();
    Fail(error);
}

// Counting alone is quick, finding the places of a list that is not ordered by its key means sorting it. So
// the count goes ahead there, while the places of the key's order count as they come.
void TPagedLoader::BeginCount()
{
    if (countIsGiven_) {
        countThread_->Abandon();
        TakeGivenCount();
        return;
    }
    if (statements_->OrderedByKey()) {
        BeginSurvey();
        return;
    }
    const auto work = [this](TPageReader& reader) -> TQueryThread::TAnswer {
        return [this, count = reader.Count()] {
            list_.SetCount(count, true);
            BeginSurvey();
            Q_EMIT countChanged();
        };
    };
    countThread_->Begin(Task(work, &TPagedLoader::Fail, statements_, true));
}

void TPagedLoader::SetCountIsGiven(bool given)
{
    countIsGiven_ = given;
    if (given || firstPending_ || !statements_ || list_.CountIsExact())
        return;
    BeginCount();
    AnnounceBusy();
}

void TPagedLoader::GiveCount(const QString& condition, int count)
{
    if (condition != asked_.Condition)
        return;
    givenCount_ = count;
    if (firstPending_ || list_.CountIsExact() || shown_.Condition != condition)
        return;
    TakeGivenCount();
    const QPointer<TPagedLoader> alive(this);
    Q_EMIT countChanged();
    if (alive)
        AnnounceBusy();
}

void TPagedLoader::TakeGivenCount()
{
    if (!givenCount_ || shown_.Condition != asked_.Condition)
        return;
    list_.SetCount(*givenCount_, true);
    BeginSurvey();
}

void TPagedLoader::BeginSurvey()
{
    const auto work = [this, rows = pageSize_](TPageReader& reader) -> TQueryThread::TAnswer {
        return [this, survey = reader.Survey(rows)] { TakeSurvey(survey); };
    };
    countThread_->Begin(Task(work, &TPagedLoader::Fail, statements_, true));
}

void TPagedLoader::TakeSurvey(const TPageReader::TSurvey& survey)
{
    const bool news = survey.Count != list_.Count() || !list_.CountIsExact();
    list_.SetCount(survey.Count, true);
    list_.SetBoundaries(survey.Boundaries);
    const QPointer<TPagedLoader> alive(this);
    if (news)
        Q_EMIT countChanged();
    if (alive)
        AnnounceBusy();
}

QVariant TPagedLoader::Value(int row, int field)
{
    if (row < 0 || row >= list_.Count())
        return {};
    // Half a page ahead, so that the rows in sight of a new list do not bring another page with them.
    if (!list_.CountIsExact() && row >= list_.Count() - (pageSize_ + 1) / 2 && !growWanted_) {
        growWanted_ = true;
        PostReadNext();
    }
    if (const QVariant* value = list_.Value(row, field))
        return *value;
    if (!list_.HasRow(row))
        Want(list_.PageOf(row));
    return {};
}

std::optional<TSortKey> TPagedLoader::Place(int row)
{
    if (!statements_ || !list_.HasRow(row) || !list_.Value(row, 0))
        return std::nullopt;
    return statements_->SortKey([this, row](int field) { return *list_.Value(row, field); });
}

bool TPagedLoader::IsBusy() const
{
    return pageThread_ && (pageThread_->IsBusy() || countThread_->IsBusy());
}

void TPagedLoader::Want(int page)
{
    queue_.Add(page);
    PostReadNext();
}

// Painting asks for all cells in sight; reading begins when it has asked for all of them.
void TPagedLoader::PostReadNext()
{
    if (readPosted_)
        return;
    readPosted_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            readPosted_ = false;
            ReadNext();
        },
        Qt::QueuedConnection);
}

bool TPagedLoader::NextWanted(int* page)
{
    while (!queue_.IsEmpty()) {
        *page = queue_.TakeNewest();
        if (!list_.HasPage(*page) && *page * pageSize_ < list_.Count())
            return true;
    }
    const bool grow = growWanted_ && !list_.CountIsExact();
    growWanted_ = false;
    *page = list_.Count() / pageSize_;
    return grow;
}

void TPagedLoader::ReadNext()
{
    int page = 0;
    if (!statements_ || pagesStopped_ || pageThread_->IsBusy() || !NextWanted(&page))
        return;
    const auto work = [this, page, plan = list_.Plan(page)](TPageReader& reader) -> TQueryThread::TAnswer {
        return [this, page, plan, rows = reader.Read(plan)] { TakePage(page, plan, rows); };
    };
    pageThread_->Begin(Task(work, &TPagedLoader::FailPage, statements_, false));
    AnnounceBusy();
}

void TPagedLoader::TakePage(int page, const TPagePlan& plan, const TPageRows& rows)
{
    const int countBefore = list_.Count();
    const bool exactBefore = list_.CountIsExact();
    list_.PutPage(page, plan, rows, *statements_);
    ReadNext();
    const QPointer<TPagedLoader> alive(this);
    if (list_.Count() != countBefore || list_.CountIsExact() != exactBefore)
        Q_EMIT countChanged();
    if (alive && rows.Count() > 0)
        Q_EMIT rowsArrived(page * pageSize_, page * pageSize_ + rows.Count() - 1);
    if (alive)
        AnnounceBusy();
}

void TPagedLoader::FailPage(const EADOError& error)
{
    queue_.Clear();
    growWanted_ = false;
    pagesStopped_ = true;
    Fail(error);
}

bool TPagedLoader::WaitForAnswer(const QDeadlineTimer& deadline)
{
    if (!pageThread_ || !pageThread_->WaitForAnswer(deadline))
        return false;
    if (const TQueryThread::TAnswer answer = pageThread_->TakeAnswer())
        answer();
    return true;
}

bool TPagedLoader::WaitForFirst(const QDeadlineTimer& deadline)
{
    const QPointer<TPagedLoader> alive(this);
    while (alive && firstPending_) {
        if (probeTimer_.isActive() && probeTimer_.remainingTime() == 0)
            BeginProbe();
        if (TakeProbeAnswer())
            continue;
        const bool probing = probeTimer_.isActive() || countThread_->IsBusy();
        const QDeadlineTimer soon(probing ? probeInterval : deadline.remainingTime());
        if (!WaitForAnswer(soon < deadline ? soon : deadline) && alive && (!probing || deadline.hasExpired()))
            return false;
    }
    return alive && !firstFailed_;
}

// While the first page is awaited the other thread does nothing but look for it too.
bool TPagedLoader::TakeProbeAnswer()
{
    const TQueryThread::TAnswer answer = countThread_->TakeAnswer();
    if (answer)
        answer();
    return static_cast<bool>(answer);
}

bool TPagedLoader::WaitForRow(int row, const QDeadlineTimer& deadline)
{
    const QPointer<TPagedLoader> alive(this);
    while (alive && row >= 0 && row < list_.Count() && !list_.HasRow(row)) {
        queue_.Add(list_.PageOf(row));
        ReadNext();
        if (!WaitForAnswer(deadline))
            return false;
    }
    return alive && list_.HasRow(row);
}

void TPagedLoader::WaitForMore(const QDeadlineTimer& deadline)
{
    const QPointer<TPagedLoader> alive(this);
    const int count = list_.Count();
    while (alive && !list_.CountIsExact() && list_.Count() == count) {
        growWanted_ = true;
        ReadNext();
        if (!WaitForAnswer(deadline))
            return;
    }
}

void TPagedLoader::AnnounceBusy()
{
    const bool busy = IsBusy();
    if (busy == busyAnnounced_)
        return;
    busyAnnounced_ = busy;
    Q_EMIT busyChanged(busy);
}

void TPagedLoader::Fail(const EADOError& error)
{
    const QPointer<TPagedLoader> alive(this);
    Q_EMIT failed(error.Message(), error.ServerMessage());
    if (alive)
        AnnounceBusy();
}
