#include "FormParts.h"

#include "HostApplication.h"
#include "ShopFixture.h"
#include "SmartButton_TRV.h"
#include "SmartEdit_TRV.h"
#include "SmartLabel_TRV.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

/// A card with a heading, an edit and the buttons.
struct TCard
{
    QDialog Window;
    TSmartLabel_TRV* Heading = new TSmartLabel_TRV(&Window);
    TSmartEdit_TRV* Edit = new TSmartEdit_TRV(&Window);
    TSmartButton_TRV* Save = nullptr;
    int Saved = 0;

    TCard()
    {
        auto* column = FormParts::NewCardColumn(&Window, Heading);
        auto* row = new QHBoxLayout;
        FormParts::AddField(row, QStringLiteral("&نام:"), Edit, 0);
        column->addLayout(row);
        auto* buttons = new QHBoxLayout;
        Save = FormParts::AddSaveButtons(buttons, &Window, [this] { ++Saved; });
        column->addLayout(buttons);
        Window.show();
        TShopFixture::Activate(&Window);
        Edit->setFocus();
    }
};

} // namespace

class FormPartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHeadingShowsTheAmpersandOfAName()
    {
        const TCard card;
        card.Heading->SetCaption(QStringLiteral("A&B"));
        TSmartLabel_TRV whole;
        whole.setFont(card.Heading->font());
        whole.SetCaption(QStringLiteral("A&&B"));
        QCOMPARE(card.Heading->sizeHint().width(), whole.sizeHint().width());
    }

    void bothKeysAndTheButtonSave()
    {
        const TCard card;
        QTest::keyClick(card.Edit, Qt::Key_F2);
        QCOMPARE(card.Saved, 1);
        QTest::keyClick(card.Edit, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(card.Saved, 2);
        card.Save->click();
        QCOMPARE(card.Saved, 3);
        QVERIFY(card.Window.isVisible());
    }

    void theOtherButtonClosesTheCard()
    {
        const TCard card;
        card.Window.findChild<TSmartButton_TRV*>(QStringLiteral("Cancel_BTN"))->click();
        QVERIFY(!card.Window.isVisible());
        QCOMPARE(card.Saved, 0);
    }

    void aFieldIsNamedByItsLabelAndLedToByIt()
    {
        const TCard card;
        QCOMPARE(card.Edit->accessibleName(), QStringLiteral("نام"));
        const auto labels = card.Window.findChildren<TSmartLabel_TRV*>();
        const bool leads = std::any_of(labels.begin(), labels.end(), [&card](const TSmartLabel_TRV* label) {
            return label->FocusControl() == card.Edit;
        });
        QVERIFY(leads);
    }
};

int main(int argumentCount, char** arguments)
{
    return RunFormTest<FormPartsTest>(argumentCount, arguments);
}
#include "FormPartsTest.moc"
