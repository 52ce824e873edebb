#pragma once

#include <QTimer>
#include <QWidget>

class QPushButton;
class TADOConnection;
class TPic_Show;
class TPictureCard;

/// The pictures of a record on its card: to look at, to add, to exchange.
class TRecordPictures : public QWidget
{
    Q_OBJECT

public:
    /// `group` is that of TPictureOwner. The connection must outlive this.
    TRecordPictures(TADOConnection& connection, int group, QWidget* parent = nullptr);
    ~TRecordPictures() override;

    /// The record whose pictures are shown, from the event loop, so that leafing through records does not
    /// wait for those that are passed over; 0 for none.
    void ShowRecord(int code);
    TPic_Show& Viewer() { return *viewer_; }
    /// Opens the card of a new picture, or of the one that is shown, and shows what has been saved.
    void AddPicture();
    void ChangePicture();

private:
    QPushButton* NewButton(const QString& name, const QString& caption, void (TRecordPictures::*action)());
    void Load(bool afresh);
    void OpenCard(int id);
    int ShownId() const;

    TADOConnection* connection_;
    int group_;
    int code_ = 0;
    TPic_Show* viewer_;
    QPushButton* add_;
    QPushButton* change_;
    QTimer delay_;
};
