# The settings of Brimo's dialogs on users' Wine prefixes, through
# brimo-settings --json (nothing is read from its text).

DOCUMENTATION = r'''
module: brimo_settings
short_description: Set Brimo's settings in users' Wine prefixes
description:
  - Gives keys of the general or slope dialog their values, applies an office
    file, or enforces the office standard, on one or more Wine prefixes, with
    the dialogs' own checks and commit (both files, locked and journalled).
  - Supports check mode and diff mode (each key's value before and after).
options:
  prefix:
    description: Wine prefixes; the environment's WINEPREFIX when none is given.
    type: list
    elements: path
  user:
    description: The Zorel user in place of [Users] actuel of zorel.ini.
    type: str
  dialog:
    description: The dialog whose keys I(values) names.
    type: str
    choices: [general, slope]
    default: general
  values:
    description: Keys and their values, as brimo-settings set takes them.
    type: dict
  file:
    description: A profile file whose [Brimo_Gene] and [Brimo_Talus] keys are applied.
    type: path
  state:
    description: C(present) sets I(values) or applies I(file); C(enforced) heals
      every key that the office standard gives or locks.
    type: str
    choices: [present, enforced]
    default: present
  executable:
    description: The brimo-settings to run.
    type: path
    default: brimo-settings
'''

EXAMPLES = r'''
- name: The office's name and language for three users
  brimo_settings:
    prefix: [/home/jean/.wine, /home/marie/.wine, /home/paul/.wine]
    values: {x_nom_bureau: Bureau Nord, x_lang: DEU}
- name: Every user back on the office standard
  brimo_settings:
    prefix: "{{ brimo_prefixes }}"
    state: enforced
'''

import json

from ansible.module_utils.basic import AnsibleModule


def command_line(params, check):
    if params['state'] == 'enforced':
        words = ['heal']
    elif params['file']:
        words = ['apply', params['file']]
    else:
        words = ['set', '--dialog', params['dialog']]
        words += ['%s=%s' % (key, '' if value is None else value) for key, value in sorted(params['values'].items())]
    words += ['--json']
    if check:
        words.append('--check')
    for prefix in params['prefix'] or []:
        words += ['--prefix', prefix]
    if params['user']:
        words += ['--user', params['user']]
    return [params['executable']] + words


def diff_of(report):
    before, after = [], []
    for prefix in report.get('prefixes', []):
        for key in prefix.get('keys', []):
            name = '%s: [%s] %s' % (prefix['prefix'], key['section'], key['key'])
            before.append('%s=%s\n' % (name, key['old']))
            after.append('%s=%s\n' % (name, key['new']))
    return {'before': ''.join(before), 'after': ''.join(after)}


def main():
    module = AnsibleModule(
        argument_spec=dict(
            prefix=dict(type='list', elements='path'),
            user=dict(type='str'),
            dialog=dict(type='str', choices=['general', 'slope'], default='general'),
            values=dict(type='dict'),
            file=dict(type='path'),
            state=dict(type='str', choices=['present', 'enforced'], default='present'),
            executable=dict(type='path', default='brimo-settings'),
        ),
        mutually_exclusive=[('values', 'file')],
        required_if=[('state', 'present', ('values', 'file'), True)],
        supports_check_mode=True,
    )
    words = command_line(module.params, module.check_mode)
    rc, out, err = module.run_command(words)
    try:
        report = json.loads(out)
    except ValueError:
        module.fail_json(msg=err.strip() or 'brimo-settings printed no report', rc=rc, cmd=words)
    result = dict(changed=report.get('changed', 0) > 0, report=report, rc=rc, cmd=words)
    if module._diff:
        result['diff'] = diff_of(report)
    if report.get('status') in ('refused', 'failed'):
        module.fail_json(msg=err.strip() or report.get('status'), **result)
    module.exit_json(**result)


if __name__ == '__main__':
    main()
