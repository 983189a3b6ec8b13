#pragma once

#include <cstdint>
#include <initializer_list>

#include "forms/block.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Whether the text is a valid name in code: a letter, then letters, digits and underscores, at
/// most 40 characters.
bool IsName(TextView name);

/// Whether the control, menu or form has this name, ignoring case.
bool Bears(const forms::Block& block, TextView name);

/// "VLabel" of "lumenkit.VLabel", and "ListViewCtrl" of "MSComctlLib.ListViewCtrl.2".
TextView ShortClassName(TextView className);

/// Whether a control or menu of the form, or the form itself, has this name.
bool IsTaken(const forms::Block& form, TextView name);

/// The name of a new control: the usual name of its class, "Command" of "VB.CommandButton", or else
/// the short name of the class, with the lowest number, from 1, that makes it unused in all
/// `forms`.
Text FreshName(std::initializer_list<const forms::Block*> forms, TextView className);

/// The name of a copy: the original's, with the lowest number above its own that makes it unused in
/// all `forms`. "Command3" after "Command2", "cmdOrder1" after "cmdOrder".
Text CopyName(std::initializer_list<const forms::Block*> forms, TextView original);

/// One more than the highest index of the control array `name`.
std::int32_t FreshIndex(const forms::Block& form, TextView name);

/// One more than the highest TabIndex.
std::int32_t FreshTabIndex(const forms::Block& form);

}  // namespace lumenkit::lumenform
