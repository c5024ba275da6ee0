#pragma once

#include "program/windows.h"
#include "support/running_program.h"
#include "terms/frm_fut.h"
#include "terms/term_list.h"

#include <string>
#include <string_view>

/// A program that has started with a frequent terms list on disk.
struct TermsRun : RunningProgram {
    explicit TermsRun(std::string_view lines = "", std::string_view startLength = "2")
        : RunningProgram(Begin::NotStarted) {
        folder.Write("Proposals/Default Terms.fut", lines);
        Setting("Auto Start Position:", startLength);
        Start();
    }

    [[nodiscard]] frmFUT& List() { return *static_cast<frmFUT*>(modWindows::Find(program, "frmFUT")); }
    [[nodiscard]] std::string OnDisk(std::string_view name = "Default Terms.fut") const {
        return folder.Read("Proposals/" + std::string(name));
    }
    [[nodiscard]] std::string InMemory() const {
        std::string all;
        for (const std::string_view line : program.terms.Lines) {
            all += std::string(line) + "|";
        }
        return all;
    }
};
