#include "settings/network_share.h"

#include "base/paths.h"
#include "base/text.h"
#include "program/program.h"
#include "settings/settings.h"

#include <string>

namespace modShare {

namespace {

/// What the folder in force holds under the proposal's name is somebody else's.
void ComeWithoutFile(Program& program) {
    DocumentState& document = program.document;
    document.FilePath = program.folders.ProposalsFolder;
    document.FileExists = false;
    document.FromBackup = false;
    document.SavedFile = {};
    document.FolderOnShow = document.FilePath;
}

} // namespace

void RequestNetworkSharePath(Program& program) {
    const std::string prompt =
        "Please enter the network share DRIVE LETTER now, singularly without symbols... i.e., c, d, e, f, g, "
        "etc."
        "\r\n\r\n"
        "The network share drive is the drive where the Proposal Files will now reside to be shared within "
        "the network. "
        "If this install is on a stand alone system (non-network), the drive letter will likely be \"c\", "
        "otherwise it "
        "could be \"f\" or \"g\" or any other letter."
        "\r\n\r\n"
        "If you're unsure of the network share drive, press Cancel to resume the current Proposal Folder.";
    const std::string reply = program.platform.questions.InputBox(prompt, "Proposal Directory Setup", "");
    if (reply.empty()) {
        return;
    }
    const char first = reply.front();
    const bool letter =
        reply.size() == 1 && ((first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z'));
    if (!letter && !paths::IsSeparator(first)) {
        program.platform.questions.MsgBox(
            text::Lines({"You have not entered a valid Drive Letter. Please",
                         "contact the Help File for assistance in setting up", "a network share path."}),
            Buttons::Ok, "");
        return;
    }
    const std::string folder = letter ? reply + ":\\" : paths::WithSeparator(reply);
    const std::string before = program.folders.ProposalsFolder;
    if (!modSettings::Store(program, {{modSettings::Key::SharedDirectory, folder}})) {
        return;
    }
    modSettings::GetUserPreferences(program);
    if (!paths::SameFolder(before, program.folders.ProposalsFolder)) {
        ComeWithoutFile(program);
    }
}

} // namespace modShare
