#include "controls/look/Stile.h"

#include "art/Disegni.h"

#include <QApplication>
#include <QStyleOptionButton>

using namespace Qt::StringLiterals;

namespace {

QStringView disegnoDi(QStyle::StandardPixmap quale)
{
    switch (quale) {
    case QStyle::SP_MessageBoxInformation:
        return u"messaggio_informazione";
    case QStyle::SP_MessageBoxQuestion:
        return u"messaggio_domanda";
    case QStyle::SP_MessageBoxCritical:
        return u"messaggio_stop";
    case QStyle::SP_MessageBoxWarning:
        return u"messaggio_attenzione";
    case QStyle::SP_ArrowBack:
    case QStyle::SP_FileDialogBack:
        return u"dialogo_indietro";
    case QStyle::SP_ArrowForward:
        return u"dialogo_avanti";
    case QStyle::SP_FileDialogToParent:
        return u"dialogo_su";
    case QStyle::SP_FileDialogNewFolder:
        return u"dialogo_cartella_nuova";
    case QStyle::SP_FileDialogListView:
        return u"dialogo_elenco";
    case QStyle::SP_FileDialogDetailedView:
        return u"dialogo_dettagli";
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirClosedIcon:
    case QStyle::SP_DirHomeIcon:
        return u"cartella";
    case QStyle::SP_FileIcon:
        return u"documento";
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DriveHDIcon:
        return u"computer";
    default:
        return {};
    }
}

// If the widget's palette is a copy of the application's, with the same colours but another number,
// draws it with the application's palette and returns true; else returns false. Each new widget has
// such a copy, so without this each message box would leave new pictures in Qt's cache.
template <typename Opzione, typename Disegna>
bool conTavolozzaComune(const QStyleOption *opzione, const Disegna &disegna)
{
    const QPalette comune = QApplication::palette();
    const auto *sua = qstyleoption_cast<const Opzione *>(opzione);
    if (!sua || sua->palette.isCopyOf(comune) || !(sua->palette == comune))
        return false;
    Opzione copia(*sua);
    copia.palette = comune;
    copia.palette.setCurrentColorGroup(sua->palette.currentColorGroup());
    disegna(&copia);
    return true;
}

} // namespace

Stile::Stile() : QProxyStyle(u"Fusion"_s) {}

QIcon Stile::standardIcon(StandardPixmap quale, const QStyleOption *opzione,
                          const QWidget *controllo) const
{
    const QStringView nome = disegnoDi(quale);
    if (nome.isEmpty())
        return QProxyStyle::standardIcon(quale, opzione, controllo);
    QIcon &disegno = m_disegni[{nome.toString(), qApp->devicePixelRatio()}];
    if (disegno.isNull())
        disegno = Disegni::icona(nome);
    return disegno;
}

void Stile::drawPrimitive(PrimitiveElement quale, const QStyleOption *opzione, QPainter *pittore,
                          const QWidget *controllo) const
{
    const auto disegna = [&](const QStyleOption *come) {
        QProxyStyle::drawPrimitive(quale, come, pittore, controllo);
    };
    if (quale != PE_PanelButtonCommand || !conTavolozzaComune<QStyleOptionButton>(opzione, disegna))
        disegna(opzione);
}

void Stile::drawControl(ControlElement quale, const QStyleOption *opzione, QPainter *pittore,
                        const QWidget *controllo) const
{
    const auto disegna = [&](const QStyleOption *come) {
        QProxyStyle::drawControl(quale, come, pittore, controllo);
    };
    if (quale != CE_HeaderSection || !conTavolozzaComune<QStyleOptionHeaderV2>(opzione, disegna))
        disegna(opzione);
}

void Stile::drawComplexControl(ComplexControl quale, const QStyleOptionComplex *opzione,
                               QPainter *pittore, const QWidget *controllo) const
{
    const auto disegna = [&](const QStyleOptionComplex *come) {
        QProxyStyle::drawComplexControl(quale, come, pittore, controllo);
    };
    const bool disegnato =
        (quale == CC_ComboBox && conTavolozzaComune<QStyleOptionComboBox>(opzione, disegna)) ||
        (quale == CC_SpinBox && conTavolozzaComune<QStyleOptionSpinBox>(opzione, disegna));
    if (!disegnato)
        disegna(opzione);
}

int Stile::styleHint(StyleHint quale, const QStyleOption *opzione, const QWidget *controllo,
                     QStyleHintReturn *risposta) const
{
    // Buttons of dialogs show their text only.
    if (quale == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(quale, opzione, controllo, risposta);
}

QSize Stile::sizeFromContents(ContentsType quale, const QStyleOption *opzione,
                              const QSize &contenuto, const QWidget *controllo) const
{
    QSize misura = QProxyStyle::sizeFromContents(quale, opzione, contenuto, controllo);
    const auto *pulsante = qstyleoption_cast<const QStyleOptionButton *>(opzione);
    if (quale == CT_PushButton && pulsante && !pulsante->text.isEmpty()) {
        // Fusion leaves no room at the sides of a long text.
        constexpr int respiro = 12;
        misura.setWidth(qMax(misura.width(), contenuto.width() + 2 * respiro));
    }
    return misura;
}
