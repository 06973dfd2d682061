// Explains why the system denies the user a serial line, and what to do about it.
#pragma once

#include <QString>

// What the system says about a line and about the user of the program.
struct PermessiPorta
{
    // The device: the target, if the name that was opened is a link.
    QString dispositivo;
    QString utente;
    // The group whose members may read and write; empty if joining it would not help.
    QString gruppo;
    // The user is in the group already, but was added after this session began.
    bool daRientrare = false;
};

// Asks the system about a line that it has just denied to this user. Throws nothing.
PermessiPorta permessiPorta(const QString &percorso);

// The text for the user: what is denied, which group to join, how, and what to do afterwards.
QString spiegaPermessi(const PermessiPorta &permessi);
