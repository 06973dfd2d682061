#include "Accessibile.h"

#include "Grafica.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

// A button, a check box, or a picture to look at, by what its window has connected to it.
class Interfaccia : public QAccessibleWidget
{
public:
    explicit Interfaccia(QWidget *controllo) : QAccessibleWidget(controllo) {}

    QAccessible::Role role() const override
    {
        if (!agibile())
            return QAccessible::Graphic;
        return spunta() ? QAccessible::CheckBox : QAccessible::PushButton;
    }
    QAccessible::State state() const override
    {
        QAccessible::State stato = QAccessibleWidget::state();
        if (const std::optional<bool> segno = spunta()) {
            stato.checkable = true;
            stato.checked = *segno;
        }
        return stato;
    }
    QString text(QAccessible::Text quale) const override
    {
        const QString testo = QAccessibleWidget::text(quale);
        const auto *etichetta = qobject_cast<const QLabel *>(widget());
        return quale == QAccessible::Name && testo.isEmpty() && etichetta ? etichetta->text()
                                                                          : testo;
    }
    QStringList actionNames() const override
    {
        QStringList azioni = QAccessibleWidget::actionNames();
        if (agibile() && widget()->isEnabled())
            azioni.prepend(azione());
        return azioni;
    }
    void doAction(const QString &quale) override
    {
        if (quale != azione())
            QAccessibleWidget::doAction(quale);
        else if (agibile() && widget()->isEnabled())
            azionabile()->aziona();
    }

private:
    // nullptr while the control is going away, of which Qt still tells.
    Azionabile *azionabile() const { return dynamic_cast<Azionabile *>(widget()); }
    bool agibile() const { return azionabile() && azionabile()->prendeClick(); }
    std::optional<bool> spunta() const
    {
        return azionabile() ? azionabile()->spunta() : std::nullopt;
    }
    const QString &azione() const { return spunta() ? toggleAction() : pressAction(); }
};

QAccessibleInterface *fabbrica(const QString &, QObject *oggetto)
{
    auto *controllo = qobject_cast<QWidget *>(oggetto);
    const auto *azionabile = dynamic_cast<Azionabile *>(controllo);
    if (!azionabile)
        return nullptr;
    // A frame, and a label that is only read, are what Qt says of them.
    if (qobject_cast<Immagine *>(controllo) ||
        (qobject_cast<Etichetta *>(controllo) && azionabile->prendeClick()))
        return new Interfaccia(controllo);
    return nullptr;
}

} // namespace

void dichiaraAzionabili()
{
    [[maybe_unused]] static const bool fatto = [] {
        QAccessible::installFactory(fabbrica);
        return true;
    }();
}

void annunciaSpunta(QWidget &controllo)
{
    QAccessible::State cambiato;
    cambiato.checked = true;
    QAccessibleStateChangeEvent evento(&controllo, cambiato);
    QAccessible::updateAccessibility(&evento);
}
