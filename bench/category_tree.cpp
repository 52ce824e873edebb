// What the category frame costs on a tree of 100,000 categories: to be opened, to go down level by level, and
// to find a name, beside the same statements on SQLite's own C interface, in the same run.

#include "AdvListEditorPer.h"
#include "BenchProgram.h"
#include "Category_Search_UNT.h"
#include "DatabaseFunctions.h"
#include "DatabaseSchema.h"
#include "HostSettingsFile.h"
#include "Measure.h"
#include "PopupMenu.h"
#include "RawPage.h"
#include "ReferenceHost.h"

#include <sqlite3.h>

namespace {

constexpr int Nodes = 100000;
constexpr int ChildrenOfEach = 18; ///< four levels deep, a leaf in the last one
constexpr int Repetitions = 9;

/// The category with very many children; they are the last ones.
constexpr int WideCategory = Nodes - 1000;

/// Heap numbering: the children of a category come together.
int ParentOf(int id)
{
    return id > WideCategory ? WideCategory : (id - 1) / ChildrenOfEach;
}

void MakeTree(TADOConnection& connection)
{
    for (const QString& statement :
         DatabaseSchema::TableStatements() + DatabaseSchema::IndexAndViewStatements())
        connection.Execute(statement);
    TTransaction transaction(connection);
    for (int id = 1; id <= Nodes; ++id)
        connection.Execute(QStringLiteral("INSERT INTO category (parent_code, name) VALUES (?, ?)"),
                           {ParentOf(id), QStringLiteral("دستهٔ کالای شمارهٔ %1").arg(id % (Nodes - 7))});
    transaction.Commit();
}

/// The list of children as a program would gather it that has nothing else to do.
void RawSubNodes(sqlite3_context* context, int /*count*/, sqlite3_value** arguments)
{
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(sqlite3_context_db_handle(context),
                       "SELECT id FROM category WHERE parent_code = ? ORDER BY id", -1, &statement, nullptr);
    sqlite3_bind_value(statement, 1, arguments[0]);
    std::string list = "(";
    while (sqlite3_step(statement) == SQLITE_ROW) {
        if (list.size() > 1)
            list += ',';
        list += reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    }
    sqlite3_finalize(statement);
    list += ')';
    sqlite3_result_text(context, list.c_str(), static_cast<int>(list.size()), SQLITE_TRANSIENT);
}

/// A frame, the statements that it sends and the rows that it reads.
class TFrameRun
{
public:
    explicit TFrameRun(TADOConnection& connection) : connection_(connection)
    {
        frame_.tmpqry->AfterOpen = [this](QObject*) { rows_ += frame_.tmpqry->RecordCount(); };
        frame_.show();
    }

    qint64 Open()
    {
        return Count([this] { frame_.open(true); });
    }

    qint64 Drill()
    {
        return Count([this] {
            frame_.Editor->Values().Clear();
            frame_.Runfirst();
            while (frame_.PopupMenu1->Count() > 0)
                frame_.POP_click(frame_.PopupMenu1->Item(frame_.PopupMenu1->Count() - 1));
        });
    }

    qint64 FindName()
    {
        return Count([this] { frame_.DrawItem(QStringLiteral("دستهٔ کالای شمارهٔ 54321")); });
    }

    qint64 OpenWideMenu()
    {
        return Count([this] {
            frame_.createmenuItemByCode(WideCategory);
            frame_.PopupMenu1->Popup(frame_.pos());
            QCoreApplication::processEvents();
            frame_.PopupMenu1->close();
        });
    }

    QStringList Statements(const std::function<void()>& work)
    {
        QStringList result;
        connection_.OnWillExecute = [&result](TADOConnection*, const QString& text) { result.append(text); };
        work();
        connection_.OnWillExecute = nullptr;
        return result;
    }

private:
    template <typename TWork> qint64 Count(const TWork& work)
    {
        rows_ = 0;
        work();
        QCoreApplication::processEvents();
        return rows_;
    }

    TADOConnection& connection_;
    TCategory_frame frame_;
    qint64 rows_ = 0;
};

/// The same statements, one after the other.
class TRawRun
{
public:
    TRawRun(const QString& file, const QStringList& statements)
    {
        for (const QString& statement : statements)
            pages_.push_back(std::make_unique<TRawPage>(file, statement, [](sqlite3* handle) {
                sqlite3_create_function(handle, "dbo_category_subnodes", 3, SQLITE_UTF8, nullptr, RawSubNodes,
                                        nullptr, nullptr);
            }));
    }

    qint64 Read()
    {
        qint64 rows = 0;
        for (const auto& page : pages_)
            rows += page->Read();
        return rows;
    }

private:
    std::vector<std::unique_ptr<TRawPage>> pages_;
};

bool CompareWithRaw(const char* title, TFrameRun& frame, const QString& file,
                    const std::function<qint64()>& work)
{
    const QStringList statements = frame.Statements([&work] { work(); });
    TRawRun raw(file, statements);
    std::printf("\n%s: %d statements\n", title, static_cast<int>(statements.size()));
    return Compare(title, Repetitions, 1e6, "milliseconds",
                   {{"raw statements", [&raw] { return raw.Read(); }}, {"frame", work}});
}

bool Run(const QTemporaryDir& folder)
{
    const QString file = folder.filePath(QStringLiteral("categories.db"));
    TADOConnection connection;
    TEngineOptions options;
    options.CreateMissing = true;
    connection.SetOptions(options);
    RegisterDatabaseFunctions(connection);
    connection.SetConnectionString(QStringLiteral("sqlite:") + file);
    connection.Open();
    MakeTree(connection);

    THostSettings settings(folder.filePath(QStringLiteral("settings.ini")));
    const TReferenceHost host(connection, settings);
    TFrameRun frame(connection);
    const bool opened = CompareWithRaw("open", frame, file, [&frame] { return frame.Open(); });
    const bool drilled =
        CompareWithRaw("drill down to a leaf", frame, file, [&frame] { return frame.Drill(); });
    const bool offered = CompareWithRaw("menu of 1,000 children, painted", frame, file,
                                        [&frame] { return frame.OpenWideMenu(); });
    const bool found = CompareWithRaw("find a name", frame, file, [&frame] { return frame.FindName(); });
    return opened && drilled && offered && found;
}

} // namespace

int main(int argc, char** argv)
{
    const TBenchPlatform platform;
    const QApplication application(argc, argv);
    Look::Install(*qApp, Look::TScheme::Light);
    const QTemporaryDir folder;
    bool equal = false;
    RunBench([&] { equal = Run(folder); });
    return equal ? 0 : 1;
}
