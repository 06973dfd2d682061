// What the serial lines of all systems have in common.
#pragma once

#include <asio/serial_port.hpp>

// 9600 baud, 8 data bits, no parity, 1 stop bit, no handshake. The first option that the line does
// not take is the error.
inline asio::error_code impostaParametri(asio::serial_port &porta)
{
    using opzione = asio::serial_port_base;
    asio::error_code errore;
    const auto imposta = [&](const auto &valore) {
        if (!errore)
            porta.set_option(valore, errore);
    };
    imposta(opzione::baud_rate(9600));
    imposta(opzione::character_size(8));
    imposta(opzione::parity(opzione::parity::none));
    imposta(opzione::stop_bits(opzione::stop_bits::one));
    imposta(opzione::flow_control(opzione::flow_control::none));
    return errore;
}
