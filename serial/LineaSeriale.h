// What the serial lines of Linux and Windows have in common.
#pragma once

#include <asio/serial_port.hpp>

// Sets 9600 baud, 8 data bits, no parity, 1 stop bit, no handshake. Returns the error of the first
// option that the line refuses.
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
