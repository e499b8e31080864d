#pragma once

#include "shell/window/programinfo.h"

#include <QDialog>
#include <QStringList>

#include <optional>

namespace quillfen {

/// The about box.
class AboutBox : public QDialog
{
    Q_OBJECT

public:
    explicit AboutBox(const ProgramInfo& program, QWidget* parent = nullptr);

private:
    void showSystemInformation();
};

/// The platform's system information tool: its program and arguments; nothing if there is none.
std::optional<QStringList> systemInformationTool();

} // namespace quillfen
