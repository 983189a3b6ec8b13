// A module for clang-tidy: limits the checks to declarations outside of system headers and of
// headers that uic makes. clang-tidy does not report findings in system headers, but spends most of
// its time on them.

#include <vector>

#include <clang-tidy/ClangTidyCheck.h>
#include <clang-tidy/ClangTidyModule.h>
#include <clang-tidy/ClangTidyModuleRegistry.h>
#include <clang/AST/ASTContext.h>
#include <clang/AST/Decl.h>
#include <clang/ASTMatchers/ASTMatchFinder.h>
#include <clang/ASTMatchers/ASTMatchers.h>
#include <clang/Basic/SourceManager.h>

namespace lumenkit {
namespace {

using clang::ast_matchers::MatchFinder;

// The translation unit is the first node that the checks visit. They take the declarations that
// they visit next from the traversal scope.
class LimitScope : public clang::tidy::ClangTidyCheck {
 public:
    using ClangTidyCheck::ClangTidyCheck;

    void registerMatchers(MatchFinder* finder) override {
        finder->addMatcher(clang::ast_matchers::translationUnitDecl().bind("unit"), this);
    }

    void check(const MatchFinder::MatchResult& result) override {
        const auto* const unit = result.Nodes.getNodeAs<clang::TranslationUnitDecl>("unit");
        std::vector<clang::Decl*> scope;
        for (clang::Decl* const declaration : unit->decls()) {
            if (IsOwn(*result.SourceManager, declaration->getLocation())) {
                scope.push_back(declaration);
            }
        }
        result.Context->setTraversalScope(scope);
    }

 private:
    static bool IsOwn(const clang::SourceManager& sources, clang::SourceLocation place) {
        return !sources.isInSystemHeader(place) &&
               !sources.getFilename(sources.getExpansionLoc(place)).contains("_autogen/include/");
    }
};

class ScopeModule : public clang::tidy::ClangTidyModule {
 public:
    void addCheckFactories(clang::tidy::ClangTidyCheckFactories& factories) override {
        factories.registerCheck<LimitScope>("lumenkit-scope");
    }
};

// NOLINTNEXTLINE(cert-err58-cpp): the registry of the modules is made that way.
const clang::tidy::ClangTidyModuleRegistry::Add<ScopeModule> registration("lumenkit", "");

}  // namespace
}  // namespace lumenkit
