// Why the system refuses a serial line to a user, and what he can do about it.
#pragma once

#include <QString>

// What the system says about a line and about who asks for it.
struct PermessiPorta
{
    // The device itself, where the name that was opened is a link to it.
    QString dispositivo;
    QString utente;
    // The group whose members may read and write; empty where joining one would not help.
    QString gruppo;
    // The user is in the group already, but his session began before that.
    bool daRientrare = false;
};

// Asks the system about a line that it has just refused to this user.
PermessiPorta permessiPorta(const QString &percorso);

// The text for the user: what is refused, the group that he has to join, how, and what to do then.
QString spiegaPermessi(const PermessiPorta &permessi);
