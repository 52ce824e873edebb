#pragma once

#include "FormFixture.h"
#include "GalleryForm.h"
#include "GalleryInspector.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QTreeWidget>

/// The gallery over a sample database.
class TGalleryFixture : public TFormFixture
{
public:
    TGalleryForm& OpenGallery()
    {
        Gallery = &Open<TGalleryForm>();
        Form->resize(1180, 720);
        Settle();
        return *Gallery;
    }
    /// Until what was done is in force, and statements of the background are answered.
    static void Settle()
    {
        constexpr int DelayOfEdits = 450;
        QTest::qWait(DelayOfEdits);
    }
    QString Journal() const { return Gallery->Inspector().Journal().toPlainText(); }
    /// What the gallery tells of a criterion or of the frame itself; empty where there is no such line.
    QString State(const QString& group, const QString& line) const
    {
        const QTreeWidget& tree = Gallery->Inspector().State();
        for (int place = 0; place < tree.topLevelItemCount(); ++place) {
            const QTreeWidgetItem& item = *tree.topLevelItem(place);
            for (int child = 0; item.text(0) == group && child < item.childCount(); ++child) {
                if (item.child(child)->text(0) == line)
                    return item.child(child)->text(1);
            }
        }
        return {};
    }
    int EntryOf(const QString& className) const
    {
        for (int index = 0; index < Gallery->Entries().size(); ++index) {
            if (Gallery->Entries().at(index).ClassName == className)
                return index;
        }
        return -1;
    }

    TGalleryForm* Gallery = nullptr;
};
