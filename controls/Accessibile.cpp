#include "controls/Accessibile.h"

#include "controls/Grafica.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

// The interface of an Immagine or an Etichetta: a button or a check box if its window has connected
// a click, else a plain picture or text.
class Interfaccia : public QAccessibleWidget
{
public:
    explicit Interfaccia(QWidget *controllo) : QAccessibleWidget(controllo) {}

    QAccessible::Role role() const override
    {
        if (!agibile())
            return etichetta() ? QAccessible::StaticText : QAccessible::Graphic;
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
        return quale == QAccessible::Name && testo.isEmpty() && etichetta() ? etichetta()->text()
                                                                            : testo;
    }
    QList<std::pair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation quali) const override
    {
        auto trovate = QAccessibleWidget::relations(quali);
        QWidget *titolato = etichetta() ? etichetta()->buddy() : nullptr;
        if (titolato && quali.testFlag(QAccessible::Labelled))
            trovate.append(
                {QAccessible::queryAccessibleInterface(titolato), QAccessible::Labelled});
        return trovate;
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
    // nullptr while the control is being destroyed; Qt still asks for its interface then.
    Azionabile *azionabile() const { return dynamic_cast<Azionabile *>(widget()); }
    const QLabel *etichetta() const { return qobject_cast<const QLabel *>(widget()); }
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
    // All pictures and labels, since a click may be connected later. A Cornice keeps Qt's role.
    if (qobject_cast<Immagine *>(controllo) || qobject_cast<Etichetta *>(controllo))
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
