#pragma once

#include "Frame.h"
#include "NotifyEvent.h"
#include "OpenPictureDialog.h"

#include <QImage>

class QLabel;
class QMenu;
class TField;
class TSmartButton_TRV;
class TSmartPanel_TRV;

/// The picture of a record, to choose or to remove. Shows a file or a picture of the database; the owner
/// saves what PicAddress or Picture tells. A picture that cannot be read is none, without a word.
class BASEFRAME_EXPORT TPic_Get : public TFrame
{
    Q_OBJECT
    Q_PROPERTY(QString PicAddress READ PicAddress WRITE SetPicAddress)

public:
    explicit TPic_Get(QWidget* owner = nullptr);
    ~TPic_Get() override;

    /// Shows a JPEG or PNG file; an empty path shows none.
    void LoadPic(const QString& path);
    /// Shows the picture of a blob field's current row; null and NULL show none. PicAddress stays as it is
    /// where there is a picture.
    void LoadPic(TField* field);
    void ClearPic() { LoadPic(QString()); } ///< shows no picture and forgets the address
    /// Has the host fit the picture into its place.
    void FitPic();
    /// The full path of the file that is shown.
    QString PicAddress() const { return FPicAddress; }
    void SetPicAddress(const QString& address) { FPicAddress = address; } ///< shows nothing
    /// The picture, in its own size as far as that is not enormous; null where there is none.
    const QImage& Picture() const { return picture_; }

    /// Another picture was loaded, chosen or removed, or the user has confirmed a file that is ignored.
    TNotifyEvent OnChange;
    /// The same as writing the event.
    void SetOnChange(TNotifyEvent handler) { OnChange = std::move(handler); }

    TSmartPanel_TRV* Pic_CXGB = nullptr;
    QLabel* Pic_IMG = nullptr;
    QMenu* PIC_PMI = nullptr; ///< for owners; no control opens it
    QAction* PicInsert_PMI = nullptr;
    QAction* PicDelete_PMI = nullptr;
    TOpenPictureDialog OpenPictureDialog1; ///< what the insert button opens
    TSmartPanel_TRV* Button_CXGB = nullptr;
    TSmartButton_TRV* PicDelete_BTN = nullptr;
    TSmartButton_TRV* PicInsert_BTN = nullptr;

Q_SIGNALS:
    void pictureChanged(); ///< at the moments of OnChange

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PicInsert_BTNClick();
    void PicDelete_BTNClick();
    void Show(const QImage& picture, const QString& address);
    void RaiseChange();

    QString FPicAddress;
    QImage picture_;
};
