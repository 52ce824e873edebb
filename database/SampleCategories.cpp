#include "SampleCategories.h"

#include "Vocabulary.h"

#include <QSet>

TSampleCategories::TSampleCategories()
{
    QVector<TCategory> path;
    for (const QString& line : Vocabulary::Lines(QStringLiteral("categories.txt"))) {
        const QString name = line.trimmed();
        path.resize(line.indexOf(name));
        TCategory node;
        node.Id = static_cast<int>(nodes_.size()) + 1;
        node.ParentId = path.isEmpty() ? 0 : path.last().Id;
        node.Name = name;
        node.Path =
            (path.isEmpty() ? QStringLiteral(",") : path.last().Path) + QString::number(node.Id) + u',';
        path.append(node);
        nodes_.append(node);
        if (!ids_.contains(name))
            ids_.insert(name, node.Id);
    }
}

QVector<int> TSampleCategories::LeavesUnder(const QString& topLevel) const
{
    const QString prefix = u',' + QString::number(IdOf(topLevel)) + u',';
    QSet<int> parents;
    for (const TCategory& node : nodes_)
        parents.insert(node.ParentId);
    QVector<int> result;
    for (const TCategory& node : nodes_) {
        if (node.Path.startsWith(prefix) && !parents.contains(node.Id))
            result.append(node.Id);
    }
    return result;
}

QString TSampleCategories::SecondLevelName(int id) const
{
    const int secondLevel = nodes_.at(id - 1).Path.section(u',', 2, 2).toInt();
    return nodes_.at(secondLevel - 1).Name;
}
