#include "RecordPictures.h"

#include "ADOQuery.h"
#include "Look.h"
#include "Pic_Show_UNT.h"
#include "PictureCard.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

TRecordPictures::TRecordPictures(TADOConnection& connection, int group, QWidget* parent)
    : QWidget(parent), connection_(&connection), group_(group), viewer_(new TPic_Show(this)),
      add_(NewButton(QStringLiteral("AddPicture_BTN"), QStringLiteral("عکس &تازه..."),
                     &TRecordPictures::AddPicture)),
      change_(NewButton(QStringLiteral("ChangePicture_BTN"), QStringLiteral("تغییر &عکس..."),
                        &TRecordPictures::ChangePicture))
{
    viewer_->Close_BTN->hide(); // the card itself is closed
    viewer_->setMinimumSize(viewer_->size());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Look::LineGap);
    column->addWidget(viewer_, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(Look::Margin);
    row->addWidget(add_);
    row->addWidget(change_);
    column->addLayout(row);
    delay_.setSingleShot(true);
    delay_.setInterval(0);
    connect(&delay_, &QTimer::timeout, this, [this] { Load(false); });
}

TRecordPictures::~TRecordPictures() = default;

QPushButton* TRecordPictures::NewButton(const QString& name, const QString& caption,
                                        void (TRecordPictures::*action)())
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setMinimumHeight(Look::ControlHeight);
    button->setAutoDefault(false);
    button->setEnabled(false);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void TRecordPictures::ShowRecord(int code)
{
    code_ = code;
    delay_.start();
}

void TRecordPictures::Load(bool afresh)
{
    // Codes begin at 1; there is nothing of a record without one.
    viewer_->Load(group_, code_, !afresh);
    add_->setEnabled(code_ > 0);
    change_->setEnabled(code_ > 0 && !viewer_->Display_QRY->IsEmpty());
}

int TRecordPictures::ShownId() const
{
    return viewer_->Display_QRY->FieldByName(QStringLiteral("Id"))->AsInteger();
}

void TRecordPictures::AddPicture()
{
    OpenCard(0);
}

void TRecordPictures::ChangePicture()
{
    OpenCard(ShownId());
}

void TRecordPictures::OpenCard(int id)
{
    auto* card = new TPictureCard(*connection_, {group_, code_}, id, window());
    card->setAttribute(Qt::WA_DeleteOnClose);
    card->setWindowModality(Qt::WindowModal);
    connect(card, &QDialog::accepted, this, [this, id] {
        Load(true);
        if (id == 0)
            viewer_->Last(); // the new one
    });
    card->open();
}
