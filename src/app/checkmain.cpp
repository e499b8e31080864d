// The check of a settings tree alone, for machines without a display and without Qt.
#include "check/checkcommand.h"
#include "check/programcall.h"
#include "store/diskstore.h"

#include <iostream>

int main(int count, char** arguments)
{
    quillfen::DiskStore disk;
    const auto call = quillfen::programCall(count, arguments);
    return quillfen::runCheck(disk, call.folder, call.arguments, std::cout, std::cerr);
}
