#pragma once

#include <QtGlobal>

/// Whether this process may write everything (root), so that what others may not do cannot be tried in it.
bool mayWriteEverything();

/// Runs the running test function, with its row of data, once more as the user "nobody", in a working
/// directory of that user's own; true when it passed there. What it printed is printed here when it did not.
bool passesAsOrdinaryUser();

/// While it lives, nothing new may be made in the working directory, by whoever may not write everything.
class ClosedFolder
{
public:
    ClosedFolder();
    ~ClosedFolder();
    ClosedFolder(const ClosedFolder&) = delete;
    ClosedFolder& operator=(const ClosedFolder&) = delete;
};

/// The first line of a test of what root may do but others may not: it is tried as somebody else.
#ifdef Q_OS_WIN
#define AS_ORDINARY_USER() QSKIP("files and folders are closed by other means on Windows");
#else
#define AS_ORDINARY_USER()                                                                                   \
    if (mayWriteEverything()) {                                                                              \
        QVERIFY(passesAsOrdinaryUser());                                                                     \
        return;                                                                                              \
    }
#endif
