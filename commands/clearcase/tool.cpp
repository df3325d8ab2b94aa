// SPDX-License-Identifier: MIT
#include "commands/clearcase/tool.h"

#include "shell/operands.h"
#include "shell/process.h"
#include "ui/clearcase_setup.h"

std::string clearcase_tool() {
    std::string alias = clearcase_setup().cleartool_alias.text();
    return alias.empty() ? "cleartool" : alias;
}

ToolLine::ToolLine(Words words) : tool_(clearcase_tool()), line_(CommandLine::of_user(tool_)) {
    line_.word(words);
}

ToolLine& ToolLine::word(Words words) {
    line_.word(words);
    return *this;
}

ToolLine& ToolLine::path(std::string_view name) {
    check(name);
    line_.path(name);
    return *this;
}

ToolLine& ToolLine::text(std::string_view value) {
    check(value);
    line_.text(value);
    return *this;
}

ToolLine& ToolLine::double_quoted_text(std::string_view value) {
    check(value);
    line_.double_quoted_text(value);
    return *this;
}

ToolLine& ToolLine::behind_line_feed() {
    line_.behind_line_feed();
    return *this;
}

Message ToolLine::type(Remember remember) const {
    return refusal_.empty() ? send(line_, remember) : refusal_;
}

void ToolLine::check(std::string_view operand) {
    if (refusal_.empty() && !takes_word_behind(tool_, operand, user_shell)) {
        refusal_ = name_refusal(operand);
    }
}
