#pragma once

#include "Frame.h"
#include "NotifyEvent.h"

#include <functional>
#include <QPair>
#include <QVector>

class TReferenceHost;

/// What the owner of a frame reads from it: an operation, and what it gives.
using TGalleryValues = QVector<QPair<QString, QVariant>>;

/// What the gallery gives to the frames that it shows.
struct TGalleryStage
{
    TReferenceHost& Host;
    std::function<void(const QString& event)> Tell; ///< shows that a frame has raised an event
    /// Shows a statement that does not go to the open database.
    std::function<void(const QString& text)> TellStatement;

    /// A handler that tells the name of its event.
    TNotifyEvent Event(const QString& name) const
    {
        return [tell = Tell, name](QObject* /*Sender*/) { tell(name); };
    }
};

/// A frame as the gallery offers it, set up as an application would.
struct TGalleryEntry
{
    QString Unit;
    QString ClassName;
    QString Purpose;                             ///< for the list, in a few words
    std::function<TFrame*(QWidget* owner)> Make; ///< the bare frame
    std::function<TFrame*(const TGalleryStage& stage, QWidget* owner)> Create;
    std::function<TGalleryValues(const TFrame& frame)> Values; ///< null where the frame hands nothing out
};

/// The entry of a frame class. `setUp` makes the frame work; `values` reads what it hands out.
template <typename TFrameClass>
TGalleryEntry GalleryEntry(const QString& unit, const QString& purpose,
                           void (*setUp)(TFrameClass& frame, const TGalleryStage& stage),
                           TGalleryValues (*values)(const TFrameClass& frame) = nullptr)
{
    TGalleryEntry entry;
    entry.Unit = unit;
    entry.ClassName = QString::fromLatin1(TFrameClass::staticMetaObject.className());
    entry.Purpose = purpose;
    entry.Make = [](QWidget* owner) -> TFrame* { return new TFrameClass(owner); };
    entry.Create = [setUp](const TGalleryStage& stage, QWidget* owner) {
        auto* frame = new TFrameClass(owner);
        setUp(*frame, stage);
        return frame;
    };
    if (values != nullptr)
        entry.Values = [values](const TFrame& frame) {
            return values(static_cast<const TFrameClass&>(frame));
        };
    return entry;
}

/// The frames in the groups of their rooms.
namespace GalleryEntries {

QVector<TGalleryEntry> Search();
QVector<TGalleryEntry> Select();
QVector<TGalleryEntry> Tags();
QVector<TGalleryEntry> Values();
QVector<TGalleryEntry> Vouchers();

/// All frames of the package, in this order.
QVector<TGalleryEntry> All();

} // namespace GalleryEntries
