#include "PictureCard.h"

#include "FormParts.h"
#include "Look.h"
#include "PersianText.h"
#include "Pic_Get_UNT.h"
#include "PictureReader.h"
#include "QueryOpening.h"
#include "SmartButton_TRV.h"
#include "SmartLabel_TRV.h"
#include "UnsavedQuestion.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

constexpr QSize pictureSize(320, 280);

QString Extension()
{
    return PersianText::Isolated(QStringLiteral(".jpg"));
}

} // namespace

TPictureCard::TPictureCard(TADOConnection& connection, const TPictureOwner& owner, int id, QWidget* parent)
    : QDialog(parent), connection_(&connection), owner_(owner), id_(id), picture_(new TPic_Get(this)),
      note_(new TSmartLabel_TRV(this))
{
    setLayoutDirection(Qt::RightToLeft);
    setWindowTitle(id == 0 ? QStringLiteral("عکس تازه") : QStringLiteral("تغییر عکس"));
    Lay();
    Load();
    picture_->SetOnChange([this](QObject*) { PictureChanged(); });
    save_->setEnabled(false);
    picture_->setFocus();
}

TPictureCard::~TPictureCard() = default;

QString TPictureCard::Note() const
{
    return note_->Caption();
}

void TPictureCard::Lay()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Look::GroupGap, Look::GroupGap, Look::GroupGap, Look::GroupGap);
    column->setSpacing(Look::Margin);
    picture_->setFixedSize(pictureSize);
    column->addWidget(picture_);
    column->addWidget(note_);
    auto* row = new QHBoxLayout;
    save_ = FormParts::AddSaveButtons(row, this, [this] { Save(); });
    column->addLayout(row);
    column->setSizeConstraint(QLayout::SetFixedSize);
    Tell(QStringLiteral("پروندهٔ JPEG با پسوند %1، تا ۱۰ مگابایت").arg(Extension()), false);
}

void TPictureCard::Load()
{
    if (id_ == 0)
        return;
    TADOQuery query;
    OpenQuery(query, *connection_,
              QStringLiteral("SELECT address, picture FROM dbo.PhotoGallery WHERE Id = ?"), {id_});
    if (query.IsEmpty())
        return;
    // As the viewer does it: the file counts where it is there.
    const QString address = query.FieldByName(QStringLiteral("address"))->AsString();
    if (PictureReader::FileExists(address))
        picture_->LoadPic(address);
    else
        picture_->LoadPic(query.FieldByName(QStringLiteral("picture")));
    addressAtFirst_ = picture_->PicAddress();
}

bool TPictureCard::IsChanged() const
{
    const bool hasPicture = !picture_->Picture().isNull();
    return hasPicture ? picture_->PicAddress() != addressAtFirst_ : id_ != 0;
}

void TPictureCard::PictureChanged()
{
    const QString chosen = picture_->OpenPictureDialog1.FileName;
    const bool hasChosen = chosen != chosenBefore_;
    chosenBefore_ = chosen;
    save_->setEnabled(IsChanged());
    if (hasChosen && PictureReader::ExtensionOf(chosen).toLower() != u".jpg")
        Tell(QStringLiteral("تنها پرونده‌های %1 پذیرفته می‌شوند.")
                 .arg(Extension()),
             true);
    else if (hasChosen && picture_->Picture().isNull())
        Tell(QStringLiteral("این پرونده عکس درستی نیست؛ پروندهٔ دیگری برگزینید."), true);
    else
        Tell(IsChanged() ? QStringLiteral("با «ذخیره» یا F2 نگه داشته می‌شود.")
                         : QString(),
             false);
}

void TPictureCard::Tell(const QString& sentence, bool wrong)
{
    QPalette palette;
    if (wrong)
        palette.setColor(QPalette::WindowText, Look::Color(Look::TRole::Wrong));
    note_->setPalette(palette);
    note_->SetCaption(sentence);
}

bool TPictureCard::Save()
{
    if (!IsChanged())
        return false;
    TPictureStore store(*connection_);
    try {
        if (picture_->Picture().isNull())
            store.Remove(id_);
        else if (id_ == 0)
            store.Add(owner_, picture_->PicAddress());
        else
            store.Replace(id_, picture_->PicAddress());
    } catch (const EPictureRefused& refused) {
        Tell(refused.Message(), true);
        return false;
    }
    accept();
    return true;
}

void TPictureCard::reject()
{
    if (IsChanged()) {
        const TUnsavedAnswer answer =
            AskAboutUnsaved(this, QStringLiteral("عکس تغییر کرده و ذخیره نشده است. پیش از بستن ذخیره شود؟"));
        if (answer == TUnsavedAnswer::Save)
            Save();
        if (answer != TUnsavedAnswer::Discard)
            return;
    }
    QDialog::reject();
}
