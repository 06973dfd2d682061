// Menus: the bar, its menus and their entries. Each entry is a QAction that is found by its name.
#pragma once

#include "controls/Evento.h"
#include "controls/Tag.h"

#include <QAction>
#include <QMenuBar>

// A menu entry. Choosing it raises Click and does not change its check mark; only code does.
class VoceMenu : public QAction
{
    Q_OBJECT
    Q_PROPERTY(QString Tag READ Tag WRITE setTag)
    Q_PROPERTY(QString Caption READ Caption WRITE setCaption)
    Q_PROPERTY(bool Checked READ Checked WRITE setChecked)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)

public:
    VoceMenu(const QString &nome, QMenu *dentro, const QString &testo);

    QString Tag() const { return m_tag.testo(); }
    void setTag(const QString &tag) { m_tag.imposta(tag); }
    // From now on the Tag shows what an owner holds.
    void mostraTag(TestoTag::Lettura lettura, TestoTag::Scrittura scrittura)
    {
        m_tag.mostra(std::move(lettura), std::move(scrittura));
    }
    QString Caption() const { return text(); }
    void setCaption(const QString &testo) { setText(testo); }
    bool Checked() const { return m_spuntata; }
    void setChecked(bool spuntata);
    bool Enabled() const { return isEnabled(); }

    Evento<> Click;

private:
    TestoTag m_tag;
    bool m_spuntata = false;
};

// The menu bar, inside its window on every system.
class BarraMenu : public QMenuBar
{
    Q_OBJECT

public:
    explicit BarraMenu(QWidget *finestra);

    // Adds a menu to the bar, or a submenu to a menu. The name goes to the QAction that opens it.
    QMenu *aggiungi(const QString &nome, const QString &testo);
    static QMenu *aggiungi(QMenu *dentro, const QString &nome, const QString &testo);
    static void aggiungiSeparatore(QMenu *dentro, const QString &nome);
};
