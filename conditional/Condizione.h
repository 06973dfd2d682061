// The text that says when a list starts: five fields parted by commas, "no" where one is not set.
//   hh:mm:ss, three digits 0 or 1 for the ultrasonic sensors, degrees, logic battery, motor battery
// Any text may stand here, as files bring it: a field that is missing is empty, not "no", and what
// is no number reads as 0.
#pragma once

#include <QString>
#include <array>
#include <optional>

inline constexpr QStringView condizionePredefinita = u"00:00:00,no,no,no,no";

enum CampoCondizione {
    CampoOrario = 1,
    CampoUltrasuoni,
    CampoTemperatura,
    CampoLogica,
    CampoMotori
};
inline constexpr int campiCondizione = 5;

// Where a field (1 to 5) begins, from 0; the text's length where it is missing.
qsizetype posizioneCampo(QStringView condizione, int campo);
// The field without its comma.
QStringView testoCampo(QStringView condizione, int campo);
// Whether the field's first two characters say that it is not set.
bool campoNo(QStringView condizione, int campo);

// The fields with a comma between them, as they are.
QString componiCondizione(const std::array<QString, campiCondizione> &campi);

// One word for the fields that are set; empty where none is.
QString DescriviCondizione(QStringView condizione);
// A file's name in a column of 31 characters, the last of them blank.
QString NomeLista(const QString &nome);

// A condition, read once to be compared with many others.
class CondizioneLetta
{
public:
    explicit CondizioneLetta(QStringView condizione);

    // What is told to the user where a list with this condition and one with the other cannot go
    // together. Only here does "no" count as not set: in the other condition it reads as 0, so that
    // the answer may differ the other way round.
    std::optional<QString> contrasto(const CondizioneLetta &altra) const;

private:
    bool uguale(const CondizioneLetta &altra, int campo) const;

    std::array<bool, campiCondizione> m_no;
    QString m_orario;
    QString m_ultrasuoni;
    std::array<double, 3> m_numeri;
};

// The same of two texts.
std::optional<QString> Contrasto(QStringView condizione, QStringView altra);

// A telemetry text ("Ultrasuoni:101", "Temperatura:25", "Batterie:34"), read once to be tested
// against many conditions; any other text meets none.
class TelemetriaLetta
{
public:
    explicit TelemetriaLetta(QStringView testo);

    // Whether it meets the condition. The time is not looked at. The number for the logic battery
    // has both digits, so that its field is met at level 0 only, by the motor battery's level.
    bool avvera(QStringView condizione) const;

private:
    int m_campo = 0; // the first one that the text is for, 0 for none
    std::array<bool, 3> m_visti{};
    double m_numero = 0;
    double m_motori = 0;
};

// The same of two texts.
bool condizioneVera(QStringView condizione, QStringView telemetria);
