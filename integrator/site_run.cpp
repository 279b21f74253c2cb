// SPDX-License-Identifier: MIT
#include "integrator/site_run.h"

#include <limits>
#include <memory>
#include <utility>

#include "integrator/link_code.h"
#include "integrator/page_references.h"
#include "integrator/run_record.h"

namespace zev {

namespace {

/// The menu that is put into a page from which the definition has this address.
PlacedMenu placedMenu(const WizardAnswers& answers, const MenuPlacing& placing,
                      const std::string& definitionURL) {
    PlacedMenu menu{placing.place, {}};
    if (!answers.isPopup)
        menu.code = placedMenuCode(definitionURL);
    else
        menu.code = definitionReference(definitionURL);
    if (answers.isPopup && placing.linkText.empty())
        menu.code += popupLinkCode(answers.submenuId, answers.placement);
    if (answers.isPopup && !placing.linkText.empty())
        menu.link = LinkedText{placing.linkText, answers.submenuId, answers.placement};
    if (placing.addition)
        menu.code += placing.addition(definitionURL);
    return menu;
}

IntegrationOptions integrationOptions(const SiteRunOptions& options, const IntegrationURLs& urls,
                                      RunRecord* record) {
    IntegrationOptions integration{rewriteOptions(options, urls)};
    integration.hasBackups = options.answers.hasBackups;
    integration.isDryRun = options.isDryRun;
    integration.isRemoval = options.isRemoval;
    integration.skipsFailing = options.answers.skipsFailing;
    integration.record = record;
    return integration;
}

class SiteRun {
  public:
    SiteRun(FileSystem& files, const SiteRunOptions& options) : m_files(files), m_options(options) {
        if (!options.recordFolder.empty())
            m_record = std::make_unique<RunRecord>(files, options.recordFolder, options.startedAt);
    }

    SiteRunResult run(const std::vector<ChosenFiles>& pages, const ShouldGoOn& shouldGoOn) {
        std::size_t count = 0;
        for (const ChosenFiles& group : pages)
            count += group.names.size();
        for (const ChosenFiles& group : pages) {
            if (!integrate(group, count, shouldGoOn)) {
                m_result.report += "Cancelled: " + std::to_string(count - m_doneCount) + " of " +
                                   std::to_string(count) + " pages not processed\r\n";
                break;
            }
        }
        if (m_record) {
            m_result.name = m_record->name();
            m_result.recordError = m_record->error();
        }
        m_result.report += m_result.summary.text();
        return std::move(m_result);
    }

  private:
    /// False when stopped.
    bool integrate(const ChosenFiles& group, std::size_t count, const ShouldGoOn& shouldGoOn) {
        const IntegrationURLs urls =
            CalculateURL(group.folder, m_options.answers.definition, m_options.answers.library);
        PageIntegrator integrator(m_files, integrationOptions(m_options, urls, m_record.get()));
        bool isStopped = false;
        for (const std::string& name : group.names) {
            isStopped = shouldGoOn && !shouldGoOn(m_doneCount, count);
            if (isStopped)
                break;
            integrator.IntegratePages({group.folder, {name}});
            m_result.lastPage = integrator.status();
            const std::string path = pagePath(group.folder, name);
            if (m_result.lastPage.bSuccess)
                m_result.donePages.push_back(path);
            for (const PageNote& note : m_result.lastPage.notes)
                m_result.notes.push_back({path, note});
            if (m_options.looksForReferences && m_result.lastPage.bPrevious)
                lookForEarlier(path, urls.definition);
            ++m_doneCount;
        }
        integrator.finish();
        m_result.report += integrator.report();
        m_result.summary.add(integrator.summary());
        return !isStopped;
    }

    void lookForEarlier(const std::string& path, const std::string& definitionURL) {
        const FileResult<std::string> page =
            m_files.readFile(path, std::numeric_limits<std::uint64_t>::max());
        if (!page.isOk())
            return;
        for (const DefinitionReference& reference : findReferences(page.value(), definitionURL)) {
            if (reference.url == definitionURL)
                continue;
            auto& found =
                reference.isWritten ? m_result.movedReferences : m_result.foreignReferences;
            found.push_back({path, reference.url});
        }
    }

    FileSystem& m_files;
    const SiteRunOptions& m_options;
    std::unique_ptr<RunRecord> m_record;
    std::size_t m_doneCount = 0;
    SiteRunResult m_result;
};

}  // namespace

SiteRunResult runOverSite(FileSystem& files, const std::vector<ChosenFiles>& pages,
                          const SiteRunOptions& options, const ShouldGoOn& shouldGoOn) {
    return SiteRun(files, options).run(pages, shouldGoOn);
}

std::map<std::string, std::set<std::string>> definitionURLs(const std::vector<ChosenFiles>& pages,
                                                            const WizardAnswers& answers) {
    std::map<std::string, std::set<std::string>> foldersOfURLs;
    for (const ChosenFiles& group : pages)
        foldersOfURLs[CalculateURL(group.folder, answers.definition, answers.library).definition]
            .insert(group.folder);
    return foldersOfURLs;
}

RewriteOptions rewriteOptions(const SiteRunOptions& options, const IntegrationURLs& urls) {
    RewriteOptions rewrite;
    rewrite.libraryURL = urls.library;
    rewrite.keepsOtherScripts = options.answers.keepsOtherScripts;
    rewrite.keptScripts = options.answers.keptScripts;
    if (options.placing)
        rewrite.menu = placedMenu(options.answers, *options.placing, urls.definition);
    if (options.replacesReferences)
        rewrite.newDefinitionURL = urls.definition;
    return rewrite;
}

}  // namespace zev
