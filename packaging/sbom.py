#!/usr/bin/env python3
"""sbom.py BUILD VERSION EPOCH COMMIT: prints what the programs of a build folder are made of, as SPDX 2.3 in JSON.

Every library that a program is linked to, and every Debian package whose headers went into its sources, by what the
build itself has noted (ninja's record of the files that were read) and not by a list.
"""
import datetime
import hashlib
import json
import os
import re
import subprocess
import sys

PROGRAMS = ('desktop/lithmark', 'cli/lithmark-cli', 'cli/lithmark-render')
NOT_SHIPPED = ('tests/', 'bench/')


def output(*words):
    return subprocess.run(words, check=True, capture_output=True, text=True).stdout


def libraries(program):
    """The files of the libraries that a program names itself."""
    needed = set(re.findall(r'NEEDED\s+(\S+)', output('objdump', '-p', program)))
    found = dict(re.findall(r'(\S+) => (/\S+)', output('ldd', program)))
    return {found[name] for name in needed if name in found}


def headers(build):
    """The headers of the system that were read for the objects that are shipped."""
    files, shipped = set(), False
    for line in output('ninja', '-C', build, '-t', 'deps').splitlines():
        if line and not line.startswith(' '):
            shipped = not line.startswith(NOT_SHIPPED)
        elif shipped and line.strip().startswith('/usr/'):
            files.add(line.strip())
    return files


def owners(files):
    """The packages that files belong to."""
    found = set()
    files = list(files)
    names = sorted({os.path.normpath(file) for file in files} | {os.path.realpath(file) for file in files})
    for start in range(0, len(names), 500):
        done = subprocess.run(['dpkg-query', '-S', *names[start:start + 500]], capture_output=True, text=True)
        for line in done.stdout.splitlines():
            if not line.startswith('diversion'):
                found.update(name.split(':')[0] for name in line.rsplit(': ', 1)[0].split(', '))
    return found


def package(name):
    version, source, architecture = output('dpkg-query', '-W', '-f', '${Version}\t${source:Package}\t${Architecture}\n',
                                           name).splitlines()[0].split('\t')
    return {
        'SPDXID': 'SPDXRef-' + re.sub(r'[^A-Za-z0-9.-]', '-', name),
        'name': name,
        'versionInfo': version,
        'supplier': 'Organization: Debian',
        'downloadLocation': 'NOASSERTION',
        'filesAnalyzed': False,
        'licenseConcluded': 'NOASSERTION',
        'licenseDeclared': 'NOASSERTION',
        'licenseComments': f'/usr/share/doc/{name}/copyright',
        'copyrightText': 'NOASSERTION',
        'sourceInfo': f'Debian source package {source}',
        'externalRefs': [{'referenceCategory': 'PACKAGE-MANAGER', 'referenceType': 'purl',
                          'referenceLocator': f'pkg:deb/debian/{name}@{version}?arch={architecture}'}],
    }


def site(build):
    """Where the program is published, as the build was told."""
    with open(os.path.join(build, 'CMakeCache.txt'), encoding='utf-8') as file:
        return re.search(r'^CMAKE_PROJECT_HOMEPAGE_URL:\w+=(.*)$', file.read(), re.MULTILINE)[1]


def sha256(path):
    with open(path, 'rb') as file:
        return hashlib.sha256(file.read()).hexdigest()


def main():
    build, version, epoch, commit = sys.argv[1:]
    programs = [os.path.join(build, name) for name in PROGRAMS if os.path.exists(os.path.join(build, name))]
    linked = owners(file for program in programs for file in libraries(program))
    compiled = owners(headers(build)) - linked
    if not linked or not compiled:
        raise SystemExit(f'{build} tells nothing about libraries or headers; build it first')
    packages = [package(name) for name in sorted(linked | compiled)]
    own = {
        'SPDXID': 'SPDXRef-lithmark', 'name': 'lithmark', 'versionInfo': version, 'downloadLocation': 'NOASSERTION',
        'filesAnalyzed': False, 'licenseConcluded': 'GPL-3.0-or-later', 'licenseDeclared': 'GPL-3.0-or-later',
        'copyrightText': 'The Lithmark developers', 'primaryPackagePurpose': 'APPLICATION', 'sourceInfo': f'commit {commit}',
    }
    relations = [{'spdxElementId': 'SPDXRef-DOCUMENT', 'relationshipType': 'DESCRIBES', 'relatedSpdxElement': own['SPDXID']}]
    for entry in packages:
        kind = 'DYNAMIC_LINK' if entry['name'] in linked else 'BUILD_DEPENDENCY_OF'
        pair = (own['SPDXID'], entry['SPDXID']) if entry['name'] in linked else (entry['SPDXID'], own['SPDXID'])
        relations.append({'spdxElementId': pair[0], 'relationshipType': kind, 'relatedSpdxElement': pair[1]})
    created = datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc)
    digest = hashlib.sha256(''.join(sha256(program) for program in programs).encode()).hexdigest()
    json.dump({
        'spdxVersion': 'SPDX-2.3', 'dataLicense': 'CC0-1.0', 'SPDXID': 'SPDXRef-DOCUMENT', 'name': f'lithmark-{version}',
        'documentNamespace': f'{site(build)}/spdx/lithmark-{version}-{digest[:32]}',
        'creationInfo': {'created': f'{created:%Y-%m-%dT%H:%M:%SZ}', 'creators': ['Organization: The Lithmark developers',
                                                                                  'Tool: packaging/sbom.py']},
        'packages': [own, *packages], 'relationships': relations,
    }, sys.stdout, indent=2, sort_keys=True)
    print()


main()
