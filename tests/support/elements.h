#ifndef TESTS_SUPPORT_ELEMENTS_H
#define TESTS_SUPPORT_ELEMENTS_H

/// @file
/// What a command list holds, as texts that can be compared and printed.

#include "pon/diff_builder.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

using Elements = std::vector<std::string>;

/// The elements of commands, a line of text each, behind their navigations: the first one's is `entry`, the others
/// stand where they belong already.
inline Elements behind(const std::string& entry, const std::string& commands)
{
    Elements elements;
    std::istringstream lines(commands);
    for (std::string command; std::getline(lines, command);) {
        elements.push_back(elements.empty() ? entry : "");
        elements.push_back(command);
    }
    return elements;
}

inline Elements elements_of(const List<char>& list)
{
    Elements elements;
    for (const ListElem<char>* node = list.first; node != nullptr; node = node->next) {
        elements.emplace_back(node->elem);
    }
    return elements;
}

/// The same, and leaves the list empty and its texts freed.
inline Elements take_elements(List<char>& list)
{
    Elements elements = elements_of(list);
    for (const ListElem<char>* node = list.first; node != nullptr; node = node->next) {
        std::free(node->elem);
    }
    list.clear();
    return elements;
}

/// True when the end and the size that the list keeps are those of its nodes.
inline bool is_sound(const List<char>& list)
{
    int size = 0;
    const ListElem<char>* last = nullptr;
    for (const ListElem<char>* node = list.first; node != nullptr; node = node->next) {
        last = node;
        ++size;
    }
    return list.last == last && list.lsize == size;
}

#endif
