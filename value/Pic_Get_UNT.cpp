#include "Pic_Get_UNT.h"

#include "Field.h"
#include "HostServices.h"
#include "PictureReader.h"
#include "SmartButton_TRV.h"
#include "SmartPanel_TRV.h"
#include "ui_Pic_Get_UNT.h"

#include <QEvent>
#include <QMenu>
#include <QPointer>

TPic_Get::TPic_Get(QWidget* owner) : TFrame(owner)
{
    Ui::TPic_Get form;
    form.setupUi(this);
    Pic_CXGB = form.Pic_CXGB;
    Pic_IMG = form.Pic_IMG;
    Button_CXGB = form.Button_CXGB;
    PicDelete_BTN = form.PicDelete_BTN;
    PicInsert_BTN = form.PicInsert_BTN;
    PIC_PMI = new QMenu(this);
    PIC_PMI->setObjectName(QStringLiteral("PIC_PMI"));
    PicInsert_PMI = PIC_PMI->addAction(QStringLiteral("انتخاب عکس"));
    PicDelete_PMI = PIC_PMI->addAction(QStringLiteral("حذف عکس"));
    PicInsert_BTN->OnClick = [this](QObject*) { PicInsert_BTNClick(); };
    PicDelete_BTN->OnClick = [this](QObject*) { PicDelete_BTNClick(); };
    Pic_IMG->installEventFilter(this);
    setFocusProxy(PicInsert_BTN);
    FormReady();
}

TPic_Get::~TPic_Get() = default;

void TPic_Get::LoadPic(const QString& path)
{
    const QString extension = PictureReader::ExtensionOf(path).toLower();
    Show(PictureReader::FromFile(path, PictureReader::FormatOfExtension(extension)), path);
    RaiseChange();
}

void TPic_Get::LoadPic(TField* field)
{
    QImage stored;
    if (field != nullptr && !field->IsNull())
        Host().Pictures.LoadFromDb(stored, field);
    Show(stored, FPicAddress);
    RaiseChange();
}

void TPic_Get::Show(const QImage& picture, const QString& address)
{
    picture_ = picture;
    FPicAddress = picture.isNull() ? QString() : address;
    FitPic();
}

void TPic_Get::FitPic()
{
    if (picture_.isNull()) {
        Pic_IMG->clear();
        return;
    }
    Pic_IMG->setPixmap(QPixmap::fromImage(picture_));
    const QRect place = Pic_IMG->geometry();
    Host().Pictures.FitPicture(Pic_IMG, place.left(), place.top(), place.width(), place.height());
}

void TPic_Get::PicInsert_BTNClick()
{
    const QPointer<TPic_Get> alive = this;
    if (!OpenPictureDialog1.Execute(this) || !alive)
        return;
    // Other files are ignored without a word, ".jpeg" among them; the owner is told all the same.
    const QString file = OpenPictureDialog1.FileName;
    if (PictureReader::ExtensionOf(file).toLower() == u".jpg")
        Show(PictureReader::FromFile(file, PictureReader::TFormat::Jpeg), file);
    RaiseChange();
}

void TPic_Get::PicDelete_BTNClick()
{
    Show({}, {});
    RaiseChange();
}

void TPic_Get::RaiseChange()
{
    const QPointer<TPic_Get> alive = this;
    // A copy, because the handler may replace itself or destroy the frame.
    if (const TNotifyEvent handler = OnChange)
        handler(this);
    if (alive)
        Q_EMIT pictureChanged();
}

bool TPic_Get::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Pic_IMG && event->type() == QEvent::Resize && !picture_.isNull())
        FitPic();
    return TFrame::eventFilter(watched, event);
}
