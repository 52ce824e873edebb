#include "Select_Entity_UNT.h"

#include "EntitySelection.h"
#include "ExpenseCenterLibrary.h"
#include "HostServices.h"
#include "Look.h"
#include "SmartButtonEdit_TRV.h"
#include "SmartLabel_TRV.h"
#include "ui_Select_Entity_UNT.h"
#include "ValueText.h"

#include <QPainter>
#include <QPointer>
#include <QScopeGuard>
#include <QShowEvent>
#include <stdexcept>

namespace {

constexpr int FontPixels = 15;
constexpr int BalloonMilliseconds = 3000;
constexpr int BalloonKind = 1;

int ToCode(const QString& text)
{
    bool isInteger = false;
    const int code = text.toInt(&isInteger);
    if (!isInteger)
        throw std::invalid_argument("\"" + text.toStdString() +
                                    "\" is not a code: it must be a whole number");
    return code;
}

/// Throws where the value is no number, or is above 0 and no code; 0 stands for all that is not above it.
int ToCode(const QVariant& value)
{
    const QString text = ValueText(value).trimmed();
    bool isNumber = false;
    const bool isPositive = text.toDouble(&isNumber) > 0;
    const bool isNothing = text.isEmpty() || (isNumber && !isPositive);
    return isNothing ? 0 : ToCode(text);
}

QString CaptionOf(TEntityType type, const QVariant& found)
{
    if (type != TEntityType::etBankAccounts)
        return found.toString();
    const QVariantList fields = found.toList();
    return QStringLiteral("%1 %2 - %3")
        .arg(fields.value(0).toString(), fields.value(1).toString(), fields.value(2).toString());
}

} // namespace

TSelect_Entity_Frame::TSelect_Entity_Frame(QWidget* owner) : TFrame(owner)
{
    // Before the controls, which take it over as they are made. Only size and weight, so that the family
    // still follows the application's.
    QFont font;
    font.setPixelSize(FontPixels);
    font.setBold(true);
    setFont(font);
    Ui::TSelect_Entity_Frame form;
    form.setupUi(this);
    Code_EDT = form.Code_EDT;
    Name_LBL = form.Name_LBL;
    // Five pixels with the line's own three: the name stands on the base line of the code.
    Name_LBL->setContentsMargins(0, 2, 0, 0);
    Code_EDT->OnButtonClick = [this](QObject* sender) { Code_EDTPropertiesButtonClick(sender); };
    Code_EDT->OnExit = [this](QObject* sender) { Code_EDTExit(sender); };
    FormReady();
}

TSelect_Entity_Frame::~TSelect_Entity_Frame() = default;

void TSelect_Entity_Frame::Clear() const
{
    Code_EDT->Clear();
    Name_LBL->Clear();
}

void TSelect_Entity_Frame::Enabled(bool enable, bool clear) const
{
    if (!enable && clear)
        Clear();
    Code_EDT->SetEnabled(enable);
}

QVariant TSelect_Entity_Frame::GetCodeValue() const
{
    return Code_EDT->Text().toInt();
}

void TSelect_Entity_Frame::SetCodeValue(const QVariant& value) const
{
    if (const int code = ToCode(value); code > 0)
        Code_EDT->SetValue(code);
    else
        Code_EDT->SetText(QString());
    // A copy, because the handler may replace itself or destroy the frame.
    if (const TNotifyEvent validate = Code_EDT->OnExit)
        validate(Code_EDT);
}

int TSelect_Entity_Frame::CodeAsInt() const
{
    const QString text = Code_EDT->Text();
    return text.isEmpty() ? 0 : ToCode(text);
}

void TSelect_Entity_Frame::CodeInfo(TEntityType entityType, const QString& code)
{
    const TEntitySelection& selection = EntitySelection(entityType);
    const QPointer<TSelect_Entity_Frame> guard(this);
    QVariant found;
    // Before the lookup, so that an error in it leaves no other code's name behind.
    Name_LBL->Clear();
    if (!selection.LookupFields.isEmpty())
        found = Host().CommonLibrary.LookupDBs(code, selection.LookupFields.toString(), selection.Locate,
                                               Code_EDT, PerLocateOptions::plAll);
    if (!guard)
        return;
    if (found.isNull()) {
        Clear();
        if (Showing() && CanFocus(Code_EDT))
            Code_EDT->setFocus();
        return;
    }
    Name_LBL->SetCaption(CaptionOf(entityType, found));
    RaiseCodeChanged();
}

void TSelect_Entity_Frame::Code_EDTExit(QObject* /*sender*/)
{
    const QString text = Code_EDT->Text();
    if (text.trimmed() == u"0") {
        RefuseZero();
    } else if (text.isEmpty()) {
        Name_LBL->Clear();
        RaiseCodeChanged();
    } else {
        const QPointer<TSelect_Entity_Frame> guard(this);
        CodeInfo(Code_EDT->EntityType(), text);
        if (guard)
            CompleteShownCode();
    }
}

void TSelect_Entity_Frame::CompleteShownCode() const
{
    const int length = EntitySelection(Code_EDT->EntityType()).ExitPad;
    if (length > 0)
        Code_EDT->SetText(Host().CommonLibrary.CompleteCode(Code_EDT->Text(), length));
}

void TSelect_Entity_Frame::RefuseZero()
{
    if (Showing()) {
        IMessages::TTooltip tooltip;
        tooltip.Title = QStringLiteral("اعتبارسنجي");
        tooltip.Text = QStringLiteral("کد صفر قابل انتخاب نمي باشد");
        tooltip.Control = Code_EDT;
        tooltip.Milliseconds = BalloonMilliseconds;
        tooltip.Kind = BalloonKind;
        tooltip.ScreenPosition = Code_EDT->mapToGlobal(QPoint());
        Host().Messages.ShowTooltipMessage(tooltip);
    }
    Clear();
    RaiseCodeChanged();
}

void TSelect_Entity_Frame::RaiseCodeChanged()
{
    const QPointer<TSelect_Entity_Frame> guard(this);
    // A copy, because the handler may replace itself or destroy the frame.
    if (const TNotifyEvent handler = OnCodeChanged)
        handler(this);
    if (guard)
        Q_EMIT codeChanged();
}

void TSelect_Entity_Frame::Code_EDTPropertiesButtonClick(QObject* /*sender*/)
{
    Go_To_NJext = false;
    const QPointer<TSelect_Entity_Frame> guard(this);
    const TEntitySelection& selection = EntitySelection(Code_EDT->EntityType());
    const int code = Pick(selection);
    if (!guard || code == 0)
        return;
    TakePicked(code, selection);
    if (guard)
        MoveOn();
}

int TSelect_Entity_Frame::Pick(const TEntitySelection& selection) const
{
    const QString argument = PickArgument(selection);
    switch (selection.Picker) {
    case TEntitySelection::TPicker::EntityList:
        return Host().Pickers.Select_Entity(selection.Part, argument, selection.All);
    case TEntitySelection::TPicker::GroupList:
        return Host().Pickers.Select_GroupList(selection.Part, argument);
    case TEntitySelection::TPicker::ExpenseCenterLibrary:
        return PickExpenseCenter(argument);
    case TEntitySelection::TPicker::None:
        break;
    }
    return 0;
}

QString TSelect_Entity_Frame::PickArgument(const TEntitySelection& selection) const
{
    switch (selection.Argument) {
    case TEntitySelection::TArgument::Parameters:
        return Code_EDT->SelectParams();
    case TEntitySelection::TArgument::TypedCode:
        return Code_EDT->Text() + QStringLiteral("#LC#") + Code_EDT->SelectParams();
    case TEntitySelection::TArgument::OtherParameters:
        return OtherParams + QStringLiteral("#OP#") + Code_EDT->SelectParams();
    case TEntitySelection::TArgument::None:
        break;
    }
    return QStringLiteral("");
}

int TSelect_Entity_Frame::PickExpenseCenter(const QString& argument)
{
    THostServices& host = Host();
    const QString library = QString::fromUtf16(ExpenseCenterLibrary);
    const ILibraries::THandle handle = host.Libraries.Tarva_LoadLibrary(library);
    if (handle == 0) {
        host.Messages.ShowMessage(
            QStringLiteral("\"ExpenseCenter_TRV.dll\" DLL File not found / not loaded"));
        return 0;
    }
    const auto release = qScopeGuard([&] { host.Libraries.Tarva_FreeLibrary(library, handle); });
    const QFunctionPointer function = host.Libraries.FindFunction(handle, ExpenseCenterFunction);
    if (!function) {
        host.Messages.ShowMessage(QStringLiteral("\"Select_ExpenseCenter\" Method not found in the DLL"));
        return 0;
    }
    const std::u16string parameters = argument.toStdU16String();
    return reinterpret_cast<TSelectExpenseCenter>(function)(parameters.c_str());
}

void TSelect_Entity_Frame::TakePicked(int code, const TEntitySelection& selection)
{
    const QString plain = QString::number(code);
    if (selection.PickPad > 0)
        Code_EDT->SetText(Host().CommonLibrary.CompleteCode(plain, selection.PickPad));
    // Intended: the lookup gets the plain code, like a typed one, and the box is completed after it.
    Code_EDT->SetText(plain);
    Code_EDTExit(nullptr);
}

void TSelect_Entity_Frame::MoveOn()
{
    if (window()->isVisible())
        focusNextPrevChild(true);
    else
        Go_To_NJext = true;
}

void TSelect_Entity_Frame::showEvent(QShowEvent* event)
{
    TFrame::showEvent(event);
    if (!Go_To_NJext || event->spontaneous())
        return;
    tabAwaitsActivation_ = true;
    SendTabWhenActive();
}

bool TSelect_Entity_Frame::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        SendTabWhenActive();
    return TFrame::event(event);
}

void TSelect_Entity_Frame::SendTabWhenActive()
{
    if (!isActiveWindow() || !std::exchange(tabAwaitsActivation_, false))
        return;
    // A window is told that it is active before one of its controls gets the focus.
    QMetaObject::invokeMethod(
        this, [] { PostTabDown(); }, Qt::QueuedConnection);
}

void TSelect_Entity_Frame::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), Look::Color(Look::TRole::Band));
}
