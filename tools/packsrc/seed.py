#!/usr/bin/env python3
"""Seeds the sample data pack sources in resources/.

Inputs: the public UN/NA name list (resources/src/public/unna-names-2012.csv)
and the curated table next to this script (curated.txt). Everything that is not
a UN number or a shipping name from the public list is sample content written
for QOR: classes and guides derived from the names, distances, chemistry,
shipping rows, provisions and incidents. None of it is official data.

The output is deterministic. The generated files are ordinary pack sources
afterwards; re-running this script overwrites them.

    tools/packsrc/seed.py            # from the repository root
"""
import csv
import hashlib
import os
import re
import sys

ROOT = os.path.abspath(os.path.join(os.path.dirname(__file__), '..', '..'))
RES = os.path.join(ROOT, 'resources')
SRC = os.path.join(RES, 'src')
HERE = os.path.dirname(os.path.abspath(__file__))


def h(key, n):
    """Deterministic choice in range(n) for a key (stable across Python versions)."""
    return int(hashlib.md5(key.encode()).hexdigest()[:8], 16) % n


def q(value):
    if value is None:
        return 'NULL'
    return "'" + str(value).replace("'", "''") + "'"


def capitalized(text):
    """Word-by-word capitalisation, as the app displays names of 4+ characters."""
    out, start = [], True
    for c in text:
        if c.isalnum():
            out.append(c.upper() if start else c.lower())
            start = False
        else:
            out.append(c)
            start = True
    return ''.join(out)


def display_name(name):
    return capitalized(name) if len(name) >= 4 else name


# ---------------------------------------------------------------- names

def public_names():
    rows = []
    with open(os.path.join(SRC, 'public', 'unna-names-2012.csv'), newline='') as f:
        for r in csv.DictReader(f):
            # "A or B" lists alternative shipping names for one number.
            for part in re.split(r"\s+or\s+(?=[A-Z]|\d[\d,'-]*[A-Za-z])", r['description']):
                name = re.sub(r'\s+', ' ', part.strip()).rstrip(',').strip()
                if name:
                    rows.append((r['id_number'], name))
    return rows


def curated():
    rows = []
    with open(os.path.join(HERE, 'curated.txt')) as f:
        for line in f:
            line = line.rstrip('\n')
            if not line or line.startswith('#'):
                continue
            p = line.split('|')
            if len(p) < 10 or any(x for x in p[11:]):
                sys.exit('curated.txt: bad line: ' + line)
            p += [''] * (11 - len(p))
            un, name, cls, guide, placard, tih, water, mark, cas, formula, syn = p[:11]
            rows.append(dict(un=un, name=name, cls=cls, guide=guide, placard=placard, tih=tih,
                             water=water, mark=mark, cas=cas, formula=formula,
                             syn=[s for s in syn.split(';') if s]))
    return rows


# Class and guide from the words of a shipping name. Crude on purpose: the
# curated table carries the materials responders look up most.
RULES = [
    (r'radioactive|uranium hexafluoride', '7', '163'),
    (r'organic peroxide', '5.2', '145'),
    (r'self-reactive', '4.1', '149'),
    (r'infectious|biological substance|medical waste|clinical waste', '6.2', '158'),
    (r'lithium ion batter', '9', '147'),
    (r'lithium metal batter|lithium batter', '9', '138'),
    (r'batter(y|ies), wet|batteries, dry', '8', '154'),
    (r'aerosol', '2.1', '126'),
    (r'toxic.*\bgas|gas.*\btoxic|poison(ous)? gas', '2.3', '123'),
    (r'toxic by inhal|inhaltion|inhalation hazard', '6.1', '151'),
    (r'refrigerated liquid|cryogenic', '2.2', '120'),
    (r'flammable.*gas|gas.*flammable|hydrogen\b|methane|ethane|propane|butane|ethylene\b|propylene|acetylene|butylene|isobutane|vinyl chloride|lighter', '2.1', '115'),
    (r'oxygen|oxidizing.*gas|nitrous oxide', '2.2', '122'),
    (r'\bgas\b|gases|compressed|refrigerant|liquefied|argon|neon|nitrogen\b|helium|krypton|xenon', '2.2', '126'),
    (r'water-reactive|dangerous when wet|\bhydrides?\b|\bcarbides?\b|\bphosphides?\b|alkali metal|alkaline earth metal|amalgam|silicide|'
     r'^(sodium|potassium|lithium|calcium|cesium|caesium|rubidium|barium|strontium|magnesium)( metal)?(,|$)', '4.3', '138'),
    (r'pyrophoric|spontaneous|self-heating|metal alkyl|aluminum alkyl|magnesium alkyl|zinc alkyl|diethylzinc', '4.2', '135'),
    (r'explosive|ammunition|cartridge|detonat|\bfuses?\b|\bfuzes?\b|booster|\bcharges?\b|propellant|powder, smokeless|rocket|grenade|'
     r'\bbombs?\b|firework|\bsignals?\b|\bflares?\b|primer|igniter|torpedo|\bmines?\b|black powder|blasting|tetrazol|trinitro|'
     r'picr|nitroglycerin|azide, dry', '1.1', '112'),
    (r'desensitized|wetted with', '4.1', '113'),
    (r'flammable solid|matches|^sulfur\b|naphthalene|nitrocellulose|phosphorus, amorphous|magnesium|celluloid|camphor|hafnium|zirconium|titanium powder|metal powder|borneol|hexamine|rubber', '4.1', '133'),
    (r'oxidiz|nitrate|chlorate|perchlorate|permanganate|peroxide|chromate|bromate|hypochlorite|chlorite|persulfate|periodate|nitrite', '5.1', '140'),
    (r'corrosive|\bacid\b|acids\b|hydroxide|caustic|alkali|chloride|bromide|anhydride|amines?\b|hydrazine|bisulfite|bisulfate|sulfide|ammonia solution', '8', '154'),
    (r'toxic|poison|cyanide|arsen|mercur|lead\b|cadmium|pesticide|thallium|barium|nicotine|strychnine|aniline|toluidine|phenol|cresol|chloroacet|isocyanate|nitrile|selenium|tellurium|beryllium|antimony|dinitro|nitrobenz|chloroform|dichloro|trichloro|tetrachloro', '6.1', '153'),
    (r'flammable|alcohol|ketone|ester|ether|acetate|aldehyde|benzene|toluene|xylene|fuel|\boil\b|oils\b|petroleum|naphtha|gasoline|kerosene|paint|resin|ink|adhesive|anol\b|ane\b|anes\b|ene\b|enes\b|formate|propionate|butyrate|acrylate|methacrylate|furan|thiophene|pyridine|mercaptan|thiol|silane|lacquer|varnish|perfumery|extracts|tincture', '3', '128'),
    (r'environmentally hazardous|asbestos|polychlorinated|elevated temperature|vehicle|engine|life-saving|machinery|apparatus|magnetized|dry ice|genetically|castor|fish|hazardous waste|other regulated|dangerous goods', '9', '171'),
]

GUIDE_REFINE = {
    # (class, word) -> guide
    ('3', 'alcohol'): '127', ('3', 'ketone'): '127', ('3', 'ether'): '127', ('3', 'toxic'): '131',
    ('3', 'corrosive'): '132', ('3', 'acetate'): '129', ('3', 'acrylate'): '129P', ('3', 'aldehyde'): '129',
    ('6.1', 'flammable'): '131', ('6.1', 'corrosive'): '154', ('6.1', 'solid'): '154', ('6.1', 'water-reactive'): '139',
    ('6.1', 'pesticide'): '151', ('6.1', 'arsen'): '152', ('6.1', 'cyanide'): '157', ('6.1', 'mercur'): '151',
    ('8', 'flammable'): '132', ('8', 'organic'): '153', ('8', 'chloride'): '137', ('8', 'toxic'): '154',
    ('2.3', 'flammable'): '119', ('2.3', 'oxidizing'): '124', ('2.3', 'corrosive'): '125',
    ('2.1', 'toxic'): '119', ('2.1', 'corrosive'): '118', ('4.3', 'toxic'): '139', ('4.3', 'corrosive'): '138',
    ('5.1', 'toxic'): '141', ('5.1', 'peroxide'): '143', ('5.2', 'temperature controlled'): '148',
    ('4.1', 'temperature controlled'): '150', ('7', 'excepted'): '161', ('7', 'low specific activity'): '162',
    ('7', 'fissile'): '165', ('7', 'special form'): '164', ('7', 'uranium hexafluoride'): '166',
    ('1.1', 'small arms'): '114', ('1.1', 'safety'): '114', ('1.1', 'fireworks'): '114',
}


def classify(name):
    low = name.lower()
    for pattern, cls, guide in RULES:
        if re.search(pattern, low):
            for (c, word), g in GUIDE_REFINE.items():
                if c == cls and word in low:
                    guide = g
            if cls == '1.1' and guide == '114':
                cls = '1.4'
            return cls, guide
    return '9', '171'


PLACARD_FOR_CLASS = {'6.2': '6.2', '7': '7'}


def placard_for(cls):
    return PLACARD_FOR_CLASS.get(cls, cls)


# ---------------------------------------------------------------- materials

INVERTIBLE = re.compile(r'^([A-Za-z][^,()]*), (anhydrous|stabilized|compressed|refrigerated liquid|molten|fused|'
                        r'glacial|dry)$', re.I)
BRITISH = [('sulfur', 'sulphur'), ('Sulfur', 'Sulphur'), ('aluminum', 'aluminium'), ('Aluminum', 'Aluminium'),
           ('cesium', 'caesium'), ('Cesium', 'Caesium')]
PLURAL_NOS = [('liquids, n.o.s', 'liquid, n.o.s'), ('solids, n.o.s', 'solid, n.o.s'), ('Liquids,', 'Liquid,'),
              ('Solids,', 'Solid,'), ('gases, n.o.s', 'gas, n.o.s'), ('compounds, n.o.s', 'compound, n.o.s')]


def variants(name):
    """Other index names a responder may look a shipping name up by."""
    out = []
    m = INVERTIBLE.match(name)
    if m:
        out.append(m.group(2)[0].upper() + m.group(2)[1:].lower() + ' ' + m.group(1)[0].lower() + m.group(1)[1:])
    m = re.match(r'^([A-Za-z][^,()]*), (solution|aqueous solution)$', name)
    if m:
        out.append('%s %s' % (m.group(1), m.group(2)))
    m = re.match(r'^([A-Za-z][^,()]*), (liquid|solid)$', name)
    if m:
        out.append(m.group(2).capitalize() + ' ' + m.group(1)[0].lower() + m.group(1)[1:])
    for us, uk in BRITISH:
        if us in name:
            out.append(name.replace(us, uk))
            break
    if ' percent' in name:
        out.append(name.replace(' percent', '%'))
    if ' degrees C' in name or ' degrees c' in name:
        out.append(re.sub(r' degrees [Cc]', '\u00b0C', name))
    if 'n.o.s' in name:
        for pl, sg in PLURAL_NOS:
            if pl in name:
                out.append(name.replace(pl, sg))
                break
    return out


def sort_key(name):
    # Chemical locants ("1,2-", "2,2'-", "1H-") do not count for the index.
    key = name
    if key[:1].isdigit():
        key = re.sub(r"^[\d,'\s\-()]+", '', key)
        key = re.sub(r'^[A-Za-z]{1,2}-(?=[A-Za-z]{2})', '', key)
    return key.lower()


class Material:
    def __init__(self, un, name, cls, guide, placard, tih='', water='', mark='', cas='', formula='', curated=False):
        self.un, self.name, self.cls, self.guide = un, name, cls, guide
        self.placard, self.tih, self.water, self.mark = placard, tih, water, mark
        self.cas, self.formula, self.curated = cas, formula, curated
        self.base = False  # a row of curated.txt itself, not a derived name

    @property
    def display(self):
        return display_name(self.name)

    def line(self):
        return '^'.join([self.name.upper() if len(self.name) >= 4 else self.name, self.placard, self.guide, self.un,
                         self.tih, self.water, self.mark])


def build_materials():
    cur = curated()
    by_key = {}
    order = []

    def add(m):
        key = (m.un, m.name.lower())
        if key in by_key:
            return by_key[key]
        by_key[key] = m
        order.append(m)
        return m

    base_by_un = {}
    bases = []
    for c in cur:
        m = add(Material(c['un'], c['name'], c['cls'], c['guide'], c['placard'], c['tih'], c['water'], c['mark'],
                         c['cas'], c['formula'], True))
        m.base = True
        bases.append(m)
        base_by_un.setdefault(c['un'], m)
        for s in c['syn']:
            add(Material(c['un'], s, c['cls'], c['guide'], c['placard'], c['tih'] if c['tih'] != '' else '',
                         c['water'], c['mark'], c['cas'], c['formula'], True))

    with open(os.path.join(HERE, 'synonyms.txt')) as f:
        for line in f:
            if line.strip() and not line.startswith('#'):
                un, names = line.rstrip('\n').split('|')
                ref = base_by_un[un]
                for s in names.split(';'):
                    add(Material(un, s, ref.cls, ref.guide, ref.placard, ref.tih, ref.water, ref.mark if ref.mark == 'M' else '',
                                 ref.cas, ref.formula))

    for un, name in public_names():
        if (un, name.lower()) in by_key:
            continue
        ref = base_by_un.get(un)
        if ref is not None and ref.mark != 'Z':
            m = Material(un, name, ref.cls, ref.guide, ref.placard, ref.tih, ref.water, '', '', '')
        else:
            cls, guide = classify(name)
            # About one in ten rows leaves the placard to the dot_placards table.
            placard = '' if h('placard' + un + name, 10) == 0 else placard_for(cls)
            tih = 'X' if re.search(r'inhalation hazard|toxic by inhal|inhaltion', name, re.I) else ''
            m = Material(un, name, cls, guide, placard, tih)
        add(m)

    for m in list(order):
        if m.mark == 'Z':
            continue
        for v in variants(m.name):
            add(Material(m.un, v, m.cls, m.guide, m.placard, m.tih, m.water, '', m.cas, m.formula, m.curated))

    order.sort(key=lambda m: (sort_key(m.name), m.un, m.name))
    # The list must start with a letter so no material is left without a section.
    assert order[0].name[0].isalpha(), order[0].name
    return order, bases


# ---------------------------------------------------------------- chemistry

ATOMIC = {'H': 1.008, 'He': 4.003, 'Li': 6.94, 'B': 10.81, 'C': 12.011, 'N': 14.007, 'O': 15.999, 'F': 18.998,
          'Na': 22.99, 'Mg': 24.305, 'Al': 26.982, 'Si': 28.085, 'P': 30.974, 'S': 32.06, 'Cl': 35.45, 'Ar': 39.948,
          'K': 39.098, 'Ca': 40.078, 'Ti': 47.867, 'Cr': 51.996, 'Mn': 54.938, 'Ni': 58.693, 'Zn': 65.38,
          'As': 74.922, 'Se': 78.971, 'Br': 79.904, 'Rb': 85.468, 'Sr': 87.62, 'I': 126.904, 'Cs': 132.905,
          'Hg': 200.592, 'U': 238.029}


def molecular_weight(formula):
    total = 0.0
    for sym, count in re.findall(r'([A-Z][a-z]?)(\d*)', formula):
        if sym not in ATOMIC:
            return ''
        total += ATOMIC[sym] * (int(count) if count else 1)
    return '%.1f' % total if total else ''


# A few well-known exposure and physical figures; sample data all the same.
KNOWN = {
    '7664-41-7': dict(rel='TWA 25 ppm ST 35 ppm', pel='TWA 50 ppm', idlh='300 ppm', bp='-28°F', desc='Colorless gas with a pungent, suffocating odor. Often shipped as a liquefied compressed gas.'),
    '7782-50-5': dict(rel='C 0.5 ppm [15-minute]', pel='C 1 ppm', idlh='10 ppm', bp='-29°F', desc='Greenish-yellow gas with a pungent, irritating odor. Shipped as a liquefied compressed gas.'),
    '67-64-1': dict(rel='TWA 250 ppm', pel='TWA 1000 ppm', idlh='2500 ppm [10%LEL]', bp='133°F', flp='0°F', lel='2.5%', uel='12.8%', desc='Colorless liquid with a fragrant, mint-like odor.'),
    '71-43-2': dict(rel='Ca TWA 0.1 ppm ST 1 ppm', pel='TWA 1 ppm ST 5 ppm', idlh='Ca [500 ppm]', bp='176°F', flp='12°F', lel='1.2%', uel='7.8%', desc='Colorless to light-yellow liquid with an aromatic odor.'),
    '108-88-3': dict(rel='TWA 100 ppm ST 150 ppm', pel='TWA 200 ppm C 300 ppm', idlh='500 ppm', bp='232°F', flp='40°F', lel='1.1%', uel='7.1%', desc='Colorless liquid with a sweet, pungent, benzene-like odor.'),
    '7783-06-4': dict(rel='C 10 ppm [10-minute]', pel='C 20 ppm', idlh='100 ppm', bp='-77°F', lel='4.0%', uel='44%', desc='Colorless gas with a strong odor of rotten eggs; the sense of smell tires quickly.'),
    '74-90-8': dict(rel='ST 4.7 ppm [skin]', pel='TWA 10 ppm [skin]', idlh='50 ppm', bp='78°F', flp='0°F', lel='5.6%', uel='40.0%', desc='Colorless or pale-blue liquid or gas with a bitter, almond-like odor.'),
    '75-44-5': dict(rel='TWA 0.1 ppm C 0.2 ppm', pel='TWA 0.1 ppm', idlh='2 ppm', bp='47°F', desc='Colorless gas with a suffocating odor like musty hay.'),
    '7446-09-5': dict(rel='TWA 2 ppm ST 5 ppm', pel='TWA 5 ppm', idlh='100 ppm', bp='14°F', desc='Colorless gas with a characteristic, irritating, pungent odor.'),
    '630-08-0': dict(rel='TWA 35 ppm C 200 ppm', pel='TWA 50 ppm', idlh='1200 ppm', bp='-313°F', lel='12.5%', uel='74%', desc='Colorless, odorless gas.'),
    '67-56-1': dict(rel='TWA 200 ppm ST 250 ppm [skin]', pel='TWA 200 ppm', idlh='6000 ppm', bp='147°F', flp='52°F', lel='6.0%', uel='36%', desc='Colorless liquid with a characteristic pungent odor.'),
    '7647-01-0': dict(rel='C 5 ppm', pel='C 5 ppm', idlh='50 ppm', bp='-121°F', desc='Colorless to slightly yellow gas with a pungent, irritating odor.'),
    '7664-39-3': dict(rel='TWA 3 ppm C 6 ppm [15-minute]', pel='TWA 3 ppm', idlh='30 ppm', bp='67°F', desc='Colorless gas or fuming liquid with a strong, irritating odor.'),
    '75-21-8': dict(rel='Ca TWA <0.1 ppm C 5 ppm', pel='TWA 1 ppm', idlh='Ca [800 ppm]', bp='51°F', flp='-20°F', lel='3.0%', uel='100%', desc='Colorless gas or liquid with an ether-like odor.'),
    '7697-37-2': dict(rel='TWA 2 ppm ST 4 ppm', pel='TWA 2 ppm', idlh='25 ppm', bp='181°F', desc='Colorless, yellow, or red fuming liquid with an acrid, suffocating odor.'),
    '7664-93-9': dict(rel='TWA 1 mg/m3', pel='TWA 1 mg/m3', idlh='15 mg/m3', bp='554°F', desc='Colorless to dark-brown, oily, odorless liquid.'),
    '1310-73-2': dict(rel='C 2 mg/m3', pel='TWA 2 mg/m3', idlh='10 mg/m3', desc='Colorless to white, odorless solid (flakes, beads, granular form).'),
    '7726-95-6': dict(rel='TWA 0.1 ppm ST 0.3 ppm', pel='TWA 0.1 ppm', idlh='3 ppm', bp='139°F', desc='Dark reddish-brown, fuming liquid with suffocating, irritating fumes.'),
    '7782-41-4': dict(rel='TWA 0.1 ppm', pel='TWA 0.1 ppm', idlh='25 ppm', bp='-307°F', desc='Pale-yellow to greenish gas with a pungent, irritating odor.'),
    '107-02-8': dict(rel='TWA 0.1 ppm ST 0.3 ppm', pel='TWA 0.1 ppm', idlh='2 ppm', bp='127°F', flp='-15°F', lel='2.8%', uel='31%', desc='Colorless or yellow liquid with a piercing, disagreeable odor.'),
    '1330-20-7': dict(rel='TWA 100 ppm ST 150 ppm', pel='TWA 100 ppm', idlh='900 ppm', bp='281°F', flp='81°F', lel='0.9%', uel='6.7%', desc='Colorless liquid with an aromatic odor.'),
    '100-42-5': dict(rel='TWA 50 ppm ST 100 ppm', pel='TWA 100 ppm', idlh='700 ppm', bp='293°F', flp='88°F', lel='0.9%', uel='6.8%', desc='Colorless to yellow, oily liquid with a sweet, floral odor.'),
    '7803-51-2': dict(rel='TWA 0.3 ppm ST 1 ppm', pel='TWA 0.3 ppm', idlh='50 ppm', bp='-126°F', desc='Colorless gas with a fish- or garlic-like odor.'),
    '7784-42-1': dict(rel='Ca C 0.002 mg/m3 [15-minute]', pel='TWA 0.05 ppm', idlh='Ca [3 ppm]', bp='-81°F', desc='Colorless gas with a mild, garlic-like odor.'),
    '74-83-9': dict(rel='Ca', pel='C 20 ppm [skin]', idlh='Ca [250 ppm]', bp='38°F', desc='Colorless gas with a chloroform-like odor at high concentrations.'),
    '10544-72-6': dict(rel='ST 1 ppm', pel='C 5 ppm', idlh='13 ppm', bp='70°F', desc='Yellowish-brown liquid or reddish-brown gas with a pungent, acrid odor.'),
    '64-17-5': dict(rel='TWA 1000 ppm', pel='TWA 1000 ppm', idlh='3300 ppm [10%LEL]', bp='173°F', flp='55°F', lel='3.3%', uel='19%', desc='Clear, colorless liquid with a weak, ethereal, vinous odor.'),
    '74-98-6': dict(rel='TWA 1000 ppm', pel='TWA 1000 ppm', idlh='2100 ppm [10%LEL]', bp='-44°F', lel='2.1%', uel='9.5%', desc='Colorless, odorless gas; a foul-smelling odorant is often added.'),
    '86290-81-5': dict(rel='Ca', pel='none', idlh='Ca [N.D.]', bp='102°F', flp='-45°F', lel='1.4%', uel='7.6%', desc='Clear liquid with a characteristic odor.'),
}

PHYS_STATE = {'1': 'Solid or article', '2': 'Gas', '3': 'Liquid', '4': 'Solid', '5': 'Solid or liquid', '6': 'Liquid or solid',
              '7': 'Solid, liquid or gas', '8': 'Liquid or solid', '9': 'Solid or liquid'}

GHS_BY_CLASS = {
    '1': ('GHS01,Dgr', 'H201: Explosive; mass explosion hazard'),
    '2.1': ('GHS02,GHS04,Dgr', 'H220: Extremely flammable gas,H280: Contains gas under pressure; may explode if heated'),
    '2.2': ('GHS04,Wng', 'H280: Contains gas under pressure; may explode if heated'),
    '2.3': ('GHS04,GHS06,GHS05,Dgr', 'H280: Contains gas under pressure; may explode if heated,H330: Fatal if inhaled,H314: Causes severe skin burns and eye damage'),
    '3': ('GHS02,GHS07,Dgr', 'H225: Highly flammable liquid and vapor,H319: Causes serious eye irritation,H336: May cause drowsiness or dizziness'),
    '4.1': ('GHS02,Wng', 'H228: Flammable solid'),
    '4.2': ('GHS02,Dgr', 'H250: Catches fire spontaneously if exposed to air'),
    '4.3': ('GHS02,GHS05,Dgr', 'H260: In contact with water releases flammable gases which may ignite spontaneously,H314: Causes severe skin burns and eye damage'),
    '5.1': ('GHS03,GHS05,Dgr', 'H272: May intensify fire; oxidizer,H314: Causes severe skin burns and eye damage'),
    '5.2': ('GHS02,GHS07,Dgr', 'H242: Heating may cause a fire,H317: May cause an allergic skin reaction'),
    '6.1': ('GHS06,GHS08,Dgr', 'H301: Toxic if swallowed,H311: Toxic in contact with skin,H330: Fatal if inhaled,H373: May cause damage to organs through prolonged or repeated exposure'),
    '7': ('GHS08,Dgr', 'H350: May cause cancer'),
    '8': ('GHS05,GHS07,Dgr', 'H314: Causes severe skin burns and eye damage,H335: May cause respiratory irritation'),
    '9': ('GHS07,GHS09,Wng', 'H319: Causes serious eye irritation,H411: Toxic to aquatic life with long lasting effects'),
}

NFPA_BY_CLASS = {'1': ('2', '4', '4', ''), '2.1': ('1', '4', '0', ''), '2.2': ('1', '0', '0', ''), '2.3': ('4', '0', '0', ''),
                 '3': ('2', '3', '0', ''), '4.1': ('2', '2', '1', ''), '4.2': ('3', '4', '2', ''), '4.3': ('3', '3', '2', 'W'),
                 '5.1': ('2', '0', '1', 'OX'), '5.2': ('3', '4', '3', 'OX'), '6.1': ('3', '1', '0', ''), '6.2': ('3', '0', '0', ''),
                 '7': ('3', '0', '0', ''), '8': ('3', '0', '1', ''), '9': ('1', '1', '0', '')}
NFPA_KNOWN = {'1005': ('3', '1', '0', ''), '1017': ('4', '0', '0', 'OX'), '1090': ('1', '3', '0', ''),
              '1203': ('1', '3', '0', ''), '1978': ('2', '4', '0', ''), '1051': ('4', '4', '2', ''),
              '1830': ('3', '0', '2', 'W'), '1428': ('3', '3', '2', 'W'), '1079': ('3', '0', '0', ''),
              '1076': ('4', '0', '1', ''), '1050': ('3', '0', '1', ''), '1052': ('4', '0', '1', '')}


def major_class(cls):
    return cls if cls in ('2.1', '2.2', '2.3', '4.1', '4.2', '4.3', '5.1', '5.2', '6.1', '6.2') else cls.split('.')[0]


def chemistry_sql(materials):
    """npg_guides/unid_npgid/cameo/wiser_text/ghs/nfpa rows for the curated materials."""
    lines = ['-- Sample chemistry rows (not official data). Generated by tools/packsrc/seed.py.']
    npg_ids = {}
    cas_names = {}
    for m in materials:
        if m.curated and m.cas and m.mark != 'Z' and m.cas not in cas_names:
            cas_names[m.cas] = m
    for i, (cas, m) in enumerate(sorted(cas_names.items(), key=lambda kv: (kv[1].un, kv[0]))):
        npg_ids[cas] = '%04d' % (i + 1)
        k = KNOWN.get(cas, {})
        cls = major_class(m.cls)
        desc = k.get('desc', '%s. Sample description.' % PHYS_STATE.get(cls[0], 'Substance'))
        syn = ', '.join(x.display for x in materials if x.un == m.un and x.cas == cas and x is not m)[:200]
        flam = 'Class IB Flammable Liquid: Fl.P. below 73â\u02c6\u017eF and BP at or above 100â\u02c6\u017eF.' if cls == '3' else \
            'Flammable Gas' if cls == '2.1' else 'Noncombustible' if cls in ('2.2', '2.3', '8') else 'Combustible'
        vals = [npg_ids[cas], m.display, cas, m.formula, '', syn, '%s %s' % (m.un, m.guide[:3]),
                k.get('rel', ''), k.get('pel', ''), k.get('idlh', ''), '', desc,
                molecular_weight(m.formula), k.get('bp', ''), '', '', '', '', '', '', k.get('flp', ''),
                k.get('uel', ''), k.get('lel', ''), '', flam, 'Strong oxidizers, acids (sample entry)',
                'See sample method', '%04d' % (1000 + i) if h('icsc' + cas, 3) else '']
        lines.append('insert into npg_guides values (%s);' % ','.join(q(v) for v in vals))
    seen_map = set()
    for m in materials:
        if m.cas in npg_ids and (m.un, m.cas) not in seen_map and m.mark != 'Z':
            seen_map.add((m.un, m.cas))
            lines.append('insert into unid_npgid values (%s,%s);' % (q(m.un), q(npg_ids[m.cas])))

    cameo_id = 0
    nfpa_by_un = {}
    wiser_done = set()
    ghs_done = set()
    for m in materials:
        if not m.curated or m.mark == 'Z':
            continue
        cls = major_class(m.cls)
        cameo_id += 1
        k = KNOWN.get(m.cas, {})
        desc = k.get('desc', '%s. Sample CAMEO-style description for %s.' % (PHYS_STATE.get(cls[0], 'Substance'), m.display))
        health = ('Sample health hazard text for %s.<p>Inhalation may irritate the nose and throat; ; '
                  'contact may irritate or burn the skin and eyes.' % m.display)
        lines.append('insert into cameo values (%s);' % ','.join(q(v) for v in [
            '%05d' % cameo_id, m.display.upper(), m.cas, m.un, desc, m.formula, health]))
        if m.un not in wiser_done:
            wiser_done.add(m.un)
            lines.append('insert into wiser_text values (%s,%s,%s);' % (q(m.un), q('USE'), q(
                'Sample use text: industrial chemical; laboratory reagent')))
            lines.append('insert into wiser_text values (%s,%s,%s);' % (q(m.un), q('EXP'), q(
                'Sample exposure text.<p>Move the victim to fresh air; remove contaminated clothing')))
        if m.cas and m.cas not in ghs_done:
            ghs_done.add(m.cas)
            key = '6.1' if m.tih and cls in ('3', '8', '4.3') else cls
            pict, stmts = GHS_BY_CLASS.get(key, GHS_BY_CLASS['9'])
            lines.append('insert into ghs values (%s,%s,%s);' % (q(m.cas), q(pict), q(stmts)))
        # Ratings belong to the substance, so every name of a UN number shares them.
        if m.un not in nfpa_by_un:
            hr = NFPA_KNOWN.get(m.un) or NFPA_BY_CLASS.get(cls, NFPA_BY_CLASS['9'])
            nfpa_by_un[m.un] = (hr[0], hr[1], hr[2], 'W') if m.water and hr[3] == '' else hr
        hr = nfpa_by_un[m.un]
        lines.append('insert into nfpa values (%s);' % ','.join(q(v) for v in [m.un, m.display] + list(hr)))
    return lines


# ---------------------------------------------------------------- isolation

SMALL = [('30', '100', '0.1', '0.1', '0.2', '0.1'), ('30', '100', '0.2', '0.1', '0.5', '0.3'),
         ('60', '200', '0.3', '0.2', '1.1', '0.7'), ('100', '300', '0.5', '0.3', '1.9', '1.2'),
         ('150', '500', '0.9', '0.6', '2.8', '1.7'), ('300', '1000', '1.8', '1.1', '5.9', '3.7')]
LARGE = [('150', '500', '0.9', '0.6', '2.5', '1.6'), ('300', '1000', '1.8', '1.1', '4.7', '2.9'),
         ('500', '1500', '3.1', '1.9', '7.4', '4.6'), ('800', '2500', '5.5', '3.4', '11+', '7+'),
         ('1000', '3000', '11+', '7+', '11+', '7+')]
WATER_SMALL = [('30', '100', '0.1', '0.1', '0.3', '0.2'), ('30', '100', '0.2', '0.1', '0.8', '0.5'),
               ('60', '200', '0.4', '0.2', '1.4', '0.9')]
WATER_LARGE = [('100', '300', '0.6', '0.4', '1.9', '1.2'), ('300', '1000', '1.4', '0.9', '4.4', '2.8'),
               ('500', '1500', '3.4', '2.1', '8.2', '5.1')]
CONTAINER_IDS = {'1005', '1017', '1040', '1050', '2186', '1052', '1079'}


def hmt_row(m, pg, symbols=''):
    cls = major_class(m.cls)
    tihz = bool(m.tih) and m.tih == 'X'
    sp = {
        '2.1': 'T50', '2.2': 'T50', '2.3': '2, B9, B14, T50',
        '3': {'I': 'T11, TP1, TP27', 'II': 'IB2, T4, TP1', 'III': 'B1, IB3, T2, TP1'},
        '6.1': {'I': '1, B9, B14, B30, T22, TP2, TP13, TP38, TP44' if tihz else 'IB7, IP1, T6, TP33',
                'II': 'IB8, IP2, IP4, T7, TP2', 'III': 'IB3, T4, TP1'},
        '8': {'I': 'A3, A7, B10, N34, T10, TP2', 'II': 'A3, A6, B2, IB2, N34, T8, TP2', 'III': 'IB3, T4, TP1'},
        '4.3': {'I': 'A7, A8, A19, A20, B27, IB4, IP1, N45', 'II': 'A19, A20, B106, IB7, IP2, T3, TP33'},
        '4.2': {'I': 'B11, T21, TP7, TP33', 'II': 'A19, IB6, IP2, T3, TP33'},
        '4.1': {'II': 'A1, IB8, IP2, IP4, T3, TP33', 'III': 'A1, IB8, IP3, T1, TP33, W31'},
        '5.1': {'I': 'A1, IB6, IP1, N34', 'II': 'A1, A29, IB8, IP3, T3, TP33', 'III': 'A1, A29, IB8, IP3, T1, TP33, W1'},
        '5.2': '53', '6.2': 'A82', '7': 'A56, W7', '9': {'III': '8, 146, 335, A54, IB8, N20, T1, TP33'},
        '1': '24, W100',
    }.get(cls, '')
    if isinstance(sp, dict):
        sp = sp.get(pg, '')
    liquid = cls in ('3', '8', '6.1') and 'solid' not in m.name.lower()
    if cls.startswith('2'):
        nb, bulk = ('302', '314') if m.cls == '2.2' and 'liquid' not in m.name.lower() else ('304', '314')
    elif cls == '1':
        nb, bulk = '62', 'None'
    elif cls == '7':
        nb, bulk = '415', '427'
    elif cls == '6.1' and tihz:
        nb, bulk = '227', '244'
    elif 'batter' in m.name.lower() and cls == '9':
        nb, bulk = '185', '185'
    elif 'carbon dioxide, solid' in m.name.lower() or 'dry ice' in m.name.lower():
        nb, bulk = '217', '240'
    elif liquid:
        nb, bulk = {'I': ('201', '243'), 'II': ('202', '242'), 'III': ('203', '241')}.get(pg, ('202', '242'))
    else:
        nb, bulk = {'I': ('211', '242'), 'II': ('212', '240'), 'III': ('213', '240')}.get(pg, ('212', '240'))
    exceptions = {'I': 'None', 'II': '150', 'III': '150'}.get(pg, '306' if cls.startswith('2') else 'None')
    pax = {'I': '1 L', 'II': '5 L', 'III': '60 L'}.get(pg, 'Forbidden' if tihz or cls in ('2.3', '1', '7') else '75 kg')
    cargo = {'I': '30 L', 'II': '60 L', 'III': '220 L'}.get(pg, 'Forbidden' if tihz or cls == '2.3' else '150 kg')
    if tihz:
        pax = cargo = 'Forbidden'
    loc = 'ABCDE'[h('stow' + m.un + pg, 5)]
    other = '40' if cls in ('2.3', '6.1') else '52' if cls == '8' else ''
    label = {'2.3': '2.3, 8' if 'corros' in m.name.lower() else '2.3', '6.1': '6.1, 3' if m.guide[:3] == '131' else '6.1',
             '4.3': '4.3, 8' if m.tih else '4.3'}.get(cls, cls)
    return [m.un, m.display, symbols, m.cls if m.cls != '6.1-tih' else '6.1', pg, label, sp, exceptions, nb, bulk,
            pax, cargo, loc, other, '']


def hmt_sql(bases):
    lines = ['-- Sample shipping-table rows (not official data).']
    multi = {'1993': ['I', 'II', 'III'], '1760': ['I', 'II', 'III'], '2810': ['I', 'II', 'III'],
             '1263': ['I', 'II', 'III'], '3264': ['I', 'II', 'III'], '3265': ['I', 'II', 'III'],
             '3266': ['I', 'II', 'III'], '1992': ['I', 'II', 'III'], '1987': ['II', 'III'],
             '2811': ['I', 'II', 'III'], '1133': ['III', 'I', 'II']}
    default_pg = {'3': 'II', '6.1': 'I', '8': 'II', '4.1': 'II', '4.2': 'I', '4.3': 'I', '5.1': 'II', '9': 'III'}

    def row(m, pg, symbols=''):
        lines.append('insert into hmt values (%s);' % ','.join(q(v) for v in hmt_row(m, pg, symbols)))

    seen = set()
    for m in bases:
        if m.mark == 'Z':
            continue
        pg = default_pg.get(major_class(m.cls), '')
        if m.un in seen:
            # Further names under a generic number: domestic-only entries.
            row(m, 'III' if m.un in multi else pg, 'D' if m.un in multi else '')
            continue
        seen.add(m.un)
        for group in multi.get(m.un, [pg]):
            row(m, group, 'G' if m.un in multi and group == 'I' else '')
        if m.cls == '3' and m.un not in multi and h('intl' + m.un, 6) == 0:
            # An international row beside the domestic one.
            row(m, 'III', 'I')
    return lines


def provision_codes(hmt_lines):
    codes = set()
    for line in hmt_lines:
        m = re.match(r"insert into hmt values \((.*)\);$", line)
        if not m:
            continue
        fields = next(csv.reader([m.group(1)], quotechar="'", skipinitialspace=True))
        if fields[6]:
            codes.update(fields[6].split(', '))
    return codes


PROVISION_TEXT = [  # by code prefix, most specific first
    (('IB', 'IP'), 'Intermediate bulk containers (IBCs) are authorized for this material under condition %s; '
                   'the IBC types and closures named for this code apply.'),
    (('TP',), 'Portable tank provision %s: the degree of filling and the relief devices of the tank must meet the '
              'conditions of this code.'),
    (('T',), 'Portable tank instruction %s: minimum test pressure, shell thickness and bottom opening rules for UN '
             'portable tanks carrying this material.'),
    (('A',), 'Aircraft provision %s: a limit or packaging condition that applies when this material is carried by aircraft.'),
    (('B',), 'Bulk packaging provision %s: additional conditions for tank cars, cargo tanks or bulk bins carrying this material.'),
    (('N',), 'Non-bulk packaging provision %s: inner packaging and closure conditions for this material.'),
    (('W',), 'Water transport provision %s: a stowage or packaging condition for carriage by vessel.'),
]


def provision_text(code):
    for prefixes, text in PROVISION_TEXT:
        if code.startswith(prefixes):
            return 'Sample text. ' + text % code
    zone = {'1': 'A', '2': 'B', '3': 'C', '4': 'D'}.get(code)
    if zone:
        return 'Sample text. This material is poisonous by inhalation, Hazard Zone %s.' % zone
    return 'Sample text. Numeric provision %s: an additional condition that applies to this entry.' % code


# ---------------------------------------------------------------- incidents

MODES = ['Highway'] * 14 + ['Rail'] * 3 + ['Air'] * 2 + ['Water']


def incidents_sql(materials, real_ids):
    """Sample incidents for UN ids the bundled real report files do not cover."""
    weights = {}
    with open(os.path.join(HERE, 'ranked-ids.txt')) as f:
        for line in f:
            if line.strip() and not line.startswith('#'):
                w, ids = line.split(':')
                for un in ids.split():
                    weights[un] = int(w)
    lines = ['-- Sample incidents (not real reports) for UN ids the bundled report files do not cover.',
             '-- Report numbers start with SAMPLE-.']
    n = 0
    for un in sorted(weights, key=lambda u: (-weights[u], u)):
        if un in real_ids:
            continue
        count = max(0, weights[un] // 25 + h('n' + un, 3) - 1)
        for k in range(count):
            n += 1
            key = '%s-%d' % (un, k)
            month = ['2024-08', '2024-09', '2024-10', '2024-11', '2024-12', '2025-01', '2025-02', '2025-03',
                     '2025-04', '2025-05', '2025-06', '2025-07'][h('m' + key, 12)]
            day = 1 + h('d' + key, 28 if month != '2025-07' else 20)
            serious = h('s' + key, 6) == 0
            flags = ['Y' if serious else 'N',
                     'Y' if serious and h('b' + key, 2) == 0 else 'N',
                     'Y' if serious and h('e' + key, 2) == 0 else 'N',
                     'Y' if serious and h('f' + key, 12) == 0 else 'N',
                     'Y' if serious and h('a' + key, 3) == 0 else 'N', 'N', 'N']
            vals = ['SAMPLE-%04d' % n, un, '%s-%02d' % (month, day), MODES[h('mode' + key, len(MODES))]] + flags
            lines.append('insert into incidents values (%s);' % ','.join(q(v) for v in vals))
    return lines


def real_incident_ids():
    ids = set()
    folder = os.path.join(SRC, 'incidents')
    for name in sorted(os.listdir(folder)):
        if name.endswith('.csv'):
            with open(os.path.join(folder, name), newline='') as f:
                rows = list(csv.reader(f))
            col = rows[0].index('Identification Number')
            for r in rows[1:]:
                digits = re.sub(r'\D', '', r[col])
                if digits:
                    ids.add(digits)
    return ids


# ---------------------------------------------------------------- output

def write(path, lines):
    path = os.path.join(RES, path)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, 'w', newline='\n') as f:
        f.write('\n'.join(lines) + '\n')


def main():
    materials, bases = build_materials()
    # The materials file and the isolation distances come from the guidebook
    # pages through the pack builder; the seed no longer writes them.

    classes, placards = {}, {}
    for m in materials:
        classes.setdefault(m.un, m.cls if m.cls != '1' else '1.1')
        if m.placard:
            placards.setdefault(m.un, m.placard)
        else:
            placards.setdefault(m.un, placard_for(m.cls))
    tables = ['-- Sample hazard classes and placard names by UN number (not official data).']
    for un in sorted(classes):
        tables.append('insert into dot_classes values (%s,%s);' % (q(un), q(classes[un])))
    for un in sorted(placards):
        # A handful of numbers have no placard row, so the app falls back to "blank".
        if h('noplacard' + un, 40) != 0:
            tables.append('insert into dot_placards values (%s,%s);' % (q(un), q(placards[un])))
    write('src/npg.db/10-classes-placards.sql', tables)
    write('src/npg.db/30-chemistry.sql', chemistry_sql(materials))
    hmt = hmt_sql(bases)
    write('src/npg.db/40-hmt.sql', hmt)
    write('src/provisions.csv', ['%s^%s' % (c, provision_text(c)) for c in
                                 sorted(provision_codes(hmt), key=lambda c: (re.sub(r'\d', '', c), int(re.sub(r'\D', '', c) or 0)))])
    write('src/hazmat_incidents.dat/50-sample-incidents.sql', incidents_sql(materials, real_incident_ids()))

    descs = []
    seen = set()
    for m in materials:
        if m.curated and m.un not in seen and m.mark != 'Z':
            seen.add(m.un)
            descs.append('%s^%s is listed under UN %s. Sample description written for the QOR sample pack, '
                         'not an encyclopedia extract.' % (m.un, m.display, m.un))
    write('wikipedia_descriptions_by_un_number.csv', descs)
    print('%d materials, %d UN numbers' % (len(materials), len(classes)))


if __name__ == '__main__':
    main()
