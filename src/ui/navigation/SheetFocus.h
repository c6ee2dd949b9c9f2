#pragma once

class QDialog;

// Gives the keyboard back to the window under a sheet once the sheet closes, to the widget that
// had it. Not every desktop does that by itself (with no window manager nobody does), and the
// screens' shortcuts act only in the active window.
class SheetFocus {
public:
    // Call before opening the sheet: the widget with the keyboard now gets it back.
    static void returnAfter(QDialog* sheet);
};
