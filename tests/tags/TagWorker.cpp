// One user who tags goods in a program of his own: TagWorker FILE USER OPERATIONS
//
// He puts his own tags (USER * 10 + 1 to USER * 10 + 9) on random selections and takes them off, by the keys
// of the frame. At the end he writes what of his the goods have to carry: a line `key code code ...` for
// each.

#include "TagsForm.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <QApplication>
#include <QRandomGenerator>
#include <set>

namespace {

constexpr int Goods = 30;
constexpr int OwnTags = 9;
constexpr int LongestSelection = 15;

class TUser
{
public:
    TUser(const QString& file, int number) : form_(file), number_(number), random_(quint32(number)) {}

    bool Sit() { return form_.Show(); }
    void Work(int operations)
    {
        for (int operation = 0; operation < operations; ++operation) {
            Select();
            if (random_.bounded(3) == 0)
                TakeOff();
            else
                Put(1 + static_cast<int>(random_.bounded(OwnTags)));
        }
    }
    void Tell() const
    {
        for (int key = 1; key <= Goods; ++key) {
            std::printf("%d", key);
            const auto found = carried_.find(key);
            if (found != carried_.end()) {
                for (const int code : found->second)
                    std::printf(" %d", code);
            }
            std::printf("\n");
        }
    }

private:
    void Select()
    {
        std::set<int> keys;
        for (int i = 0; i < LongestSelection; ++i)
            keys.insert(1 + static_cast<int>(random_.bounded(Goods)));
        selection_ = {keys.begin(), keys.end()};
        form_.Select(selection_);
    }
    void Put(int tag)
    {
        const int code = number_ * 10 + tag;
        form_.Enter(QStringLiteral("tag %1").arg(code));
        for (const int key : selection_)
            carried_[key].insert(code);
    }
    /// Backspace on one of his own items.
    void TakeOff()
    {
        const TAdvListValues& items = form_.Editor()->Values();
        const int last = items.Count() - 1;
        int item = last;
        while (item >= 0 && items[item].Value.toInt() / 10 != number_)
            --item;
        if (item < 0)
            return;
        const QString code = items[item].Value;
        const bool isTaken = form_.Editor()->SnapshotCodes.contains(code);
        form_.Editor()->CorrectEditPos();
        for (int step = item; step < last; ++step)
            form_.Press(Qt::Key_Right);
        form_.Press(Qt::Key_Backspace);
        if (isTaken) {
            for (const int key : selection_)
                carried_[key].erase(code.toInt());
        }
    }

    TTagsForm form_;
    int number_;
    QRandomGenerator random_;
    QList<int> selection_;
    std::map<int, std::set<int>> carried_;
};

} // namespace

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    const QStringList options = QCoreApplication::arguments();
    TUser user(options.at(1), options.at(2).toInt());
    if (!user.Sit())
        return EXIT_FAILURE;
    user.Work(options.at(3).toInt());
    user.Tell();
    return EXIT_SUCCESS;
}
