// The message pump that waits run inside a handler.
#pragma once

// One round: handles all events and due timers that are waiting and then, when rounds in a row
// found nothing to do, pauses for some 40 microseconds. The pause stands at the end, so that who
// counts rounds looks at the port before a timer tick can take the bytes that came meanwhile.
void pompa();
