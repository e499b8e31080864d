// The check of a settings tree alone, for machines without a display and without Qt.
#include "check/checkcommand.h"
#include "store/diskstore.h"

#include <iostream>

int main(int count, char** arguments)
{
    quillfen::DiskStore disk;
    return quillfen::runCheck(disk, quillfen::programFolderOf(arguments[0]),
                              {arguments + 1, arguments + count}, std::cout, std::cerr);
}
