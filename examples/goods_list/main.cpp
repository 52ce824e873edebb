// A list of goods with a search bar, an entity selector and the condition in words: what an application needs
// to place frames on a form of its own. The services that frames call come from the reference host.

#include "DatabaseFile.h"
#include "General_Search_UNT.h"
#include "HostApplication.h"
#include "Look.h"
#include "PagedDataSet.h"
#include "ReferenceHost.h"
#include "Select_Entity_UNT.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartDBGrid_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"

#include <chrono>
#include <cstdio>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr QSize windowSize{900, 560};
constexpr std::chrono::seconds patience{30};

TSearchItem Item(const QString& title, const QString& column, TSearchDataType type)
{
    TSearchItem item;
    item.Title = title;
    item.FiledName = column;
    item.DataType = type;
    return item;
}

class TGoodsWindow : public QWidget
{
public:
    explicit TGoodsWindow(TADOConnection& connection)
    {
        setWindowTitle(QStringLiteral("فهرست کالا"));
        resize(windowSize);
        auto* column = new QVBoxLayout(this);
        column->addWidget(search_);
        column->addWidget(goods_);
        column->addWidget(grid_, 1);
        column->addWidget(words_);

        list_.SetConnection(&connection);
        list_.SetSource({{QStringLiteral("Code"), QStringLiteral("Name"), QStringLiteral("Price")},
                         QStringLiteral("dbo.kala"),
                         QStringLiteral("Code")});
        rows_.SetDataSet(&list_);
        grid_->SetColumns({{QStringLiteral("Code"), QStringLiteral("کد"), 100, TGridColumn::ckCode},
                           {QStringLiteral("Name"), QStringLiteral("نام"), 420},
                           {QStringLiteral("Price"), QStringLiteral("قیمت"), 160, TGridColumn::ckMoney}});
        grid_->SetDataSource(&rows_);

        // The manager turns the criterion of the search bar into a condition of the list.
        manager_.Add(search_->TarvaSearch_General);
        manager_.SetDataSet(&list_);
        connect(&manager_, &TTarvaSearchManager::rebuilt, words_,
                [this] { words_->setText(manager_.ConditionInWords()); });
        TSearchItem name = Item(QStringLiteral("نام"), QStringLiteral("Name"), TSearchDataType::idtString);
        name.FoldedName = QStringLiteral("SearchName");
        TSearchCollection& items = search_->TarvaSearch_General->SearchItems;
        items.Clear();
        items.Add(name);
        items.Add(Item(QStringLiteral("قیمت"), QStringLiteral("Price"), TSearchDataType::idtMoney));
        search_->Refrenc_SearchManager = &manager_;
        search_->init();

        // A code that is typed or picked here becomes the row that the list stands on.
        goods_->Code_EDT->SetEntityType(TEntityType::etGoods);
        goods_->SetOnCodeChanged([this](QObject* /*Sender*/) {
            if (goods_->CodeAsInt() > 0)
                list_.OpenAt(goods_->CodeAsInt());
        });
        list_.Open();
    }

    ~TGoodsWindow() override
    {
        search_->Refrenc_SearchManager = nullptr;
        rows_.SetDataSet(nullptr);
    }

    // Searches for a word, tells how many goods hold it and ends the program.
    void FindAndEnd(const QString& word)
    {
        connect(&list_, &TPagedDataSet::countChanged, this, [this](int count, bool exact) {
            if (!exact || manager_.Condition().isEmpty())
                return;
            std::printf("%s: %d\n", qUtf8Printable(manager_.ConditionInWords()), count);
            QCoreApplication::exit(0);
        });
        QTimer::singleShot(patience, [] { QCoreApplication::exit(1); });
        search_->Search_EDT->SetText(word);
    }

private:
    TPagedDataSet list_;
    TDataSource rows_;
    TTarvaSearchManager manager_;
    TGeneral_Search_Frame* search_ = new TGeneral_Search_Frame(this);
    TSelect_Entity_Frame* goods_ = new TSelect_Entity_Frame(this);
    TSmartDBGrid_TRV* grid_ = new TSmartDBGrid_TRV(this);
    TSmartLabel_TRV* words_ = new TSmartLabel_TRV(this);
};

} // namespace

// Usage: goods_list [CONNECTION [WORD]]. With a word the program prints how many goods it finds and ends.
int main(int argumentCount, char** arguments)
{
    THostApplication application(argumentCount, arguments);
    Look::Install(application);
    const QStringList options = QCoreApplication::arguments().mid(1);
    TADOConnection connection;
    OpenDatabase(connection, options.value(0, QStringLiteral("sqlite::memory:")));
    application.SetConnection(&connection);
    THostSettings settings;
    const TReferenceHost host(connection, settings);
    TGoodsWindow window(connection);
    window.show();
    if (options.size() > 1)
        window.FindAndEnd(options[1]);
    return QCoreApplication::exec();
}
