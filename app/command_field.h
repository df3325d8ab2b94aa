// SPDX-License-Identifier: MIT
#pragma once

class Frame;
class TextField;

/// Sends the command in a field and files it; the frame's left footer tells why it was not sent.
void send_command_field(Frame& frame, TextField& field);
