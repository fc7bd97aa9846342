#pragma once

#include <QString>

/// Why a call that asks something of the platform was not done.
struct PlatformRefusal
{
    enum class Kind {
        None, ///< it was done
        NoSuchCall, ///< this platform has nothing of the kind
        Error,
        ErrorForTimers, ///< one half was refused with an error, the other one done
    };

    Kind kind = Kind::None;
    unsigned long error = 0; ///< the platform's number for it, of the kinds with an error

    bool isRefusal() const { return kind != Kind::None; }

    /// For the journal, whose words programs may read ("error 87"); empty when there is no refusal.
    QString inEnglish() const;

    /// The same in the language of the application.
    QString inWords() const;
};

/// That of the last call: on Windows its error, elsewhere that there is no such call.
PlatformRefusal platformRefusal();
