#!/usr/bin/env python3
"""Writes demo/panel/panel.ui: the front panel of a signal analyser, 120
widgets of the library on a blended background, laid out as a Designer form
(open it in Designer to change it; rerun this to start again from scratch)."""
import os

widgets = []
names = {}


def name(cls):
    names[cls] = names.get(cls, 0) + 1
    return f"{cls[2:].lower() if cls.startswith('Tq') else cls.lower()}{names[cls]}"


def prop(n, kind, value):
    if kind == 'color':
        r, g, b = value
        return (f'<property name="{n}" stdset="0"><color><red>{r}</red><green>{g}</green>'
                f'<blue>{b}</blue></color></property>')
    if kind == 'string':
        return f'<property name="{n}" stdset="0"><string>{value}</string></property>'
    if kind == 'bool':
        return f'<property name="{n}" stdset="0"><bool>{"true" if value else "false"}</bool></property>'
    if kind == 'enum':
        return f'<property name="{n}" stdset="0"><enum>{value}</enum></property>'
    return f'<property name="{n}" stdset="0"><number>{value}</number></property>'


def add(cls, x, y, w, h, *props, objname=None):
    n = objname or name(cls)
    geo = (f'<property name="geometry"><rect><x>{x}</x><y>{y}</y><width>{w}</width>'
           f'<height>{h}</height></rect></property>')
    widgets.append(f'  <widget class="{cls}" name="{n}">{geo}{"".join(prop(*p) for p in props)}</widget>')
    return n


def label3d(text, x, y):
    add('Tq3DLabel', x, y, 120, 17, ('Caption', 'string', text), ('FontColor', 'color', (220, 220, 230)),
        ('HighlightColor', 'color', (90, 100, 130)), ('ShadowColor', 'color', (0, 0, 0)))


# The wallpaper and the timer that feeds everything.
add('TqBackground', 1240, 4, 28, 28, ('BackType', 'enum', 'TqBackground::btBlend'),
    ('Color', 'color', (40, 48, 70)), ('EndColor', 'color', (8, 10, 18)), ('Bands', 'number', 64),
    objname='wallpaper')
add('TqcTimer', 1240, 36, 28, 28, ('Interval', 'number', 16), objname='feed')

# Title, clocks (3 labels counted below).
add('TqBigLabel', 10, 6, 420, 40, ('Caption', 'string', 'SIGNAL ANALYSER SA-120'),
    ('FontColor', 'color', (255, 200, 40)), objname='title')
add('TqSegmentClock', 940, 12, 152, 29, ('ShowSeconds', 'bool', True), objname='clock')
add('TqcDotClock', 1100, 14, 130, 29, ('LitColor', 'color', (255, 160, 0)),
    ('UnLitColor', 'color', (40, 24, 0)), objname='dotclock')

# Channels: 12 segment readouts, each with an over-range lamp.
label3d('CHANNELS', 10, 52)
for i in range(12):
    x, y = 10 + (i % 2) * 150, 72 + (i // 2) * 38
    add('TqSegmentLabel', x, y, 114, 29, ('NumberOfChars', 'number', 6), ('Caption', 'string', '0.000'),
        objname=f'reading{i}')
    add('TqLed', x + 117, y + 3, 24, 24, ('LEDColor', 'enum', 'TqLed::lctRed'), objname=f'over{i}')

# Readouts in dots.
label3d('FREQUENCY', 320, 52)
for i in range(8):
    add('TqcDotLabel', 320, 72 + i * 28, 180, 24, ('NumberOfChars', 'number', 8),
        ('LitColor', 'color', (0, 200, 255)), ('UnLitColor', 'color', (0, 24, 40)),
        ('Caption', 'string', 'F0.00kHz'), objname=f'freq{i}')

# Needle meters.
label3d('LEVELS', 520, 52)
for i in range(6):
    add('TqPanelMeter', 520 + (i % 3) * 132, 72 + (i // 3) * 132, 126, 126,
        ('Caption', 'string', f'CH{i + 1}'), objname=f'meter{i}')

# Scopes, peak meters and gauges.
label3d('TRACE', 920, 52)
for i in range(2):
    add('TqScope', 920, 72 + i * 150, 340, 140, ('GridXstep', 'number', 20), ('GridYstep', 'number', 20),
        objname=f'scope{i}')
label3d('PEAK', 920, 372)
for i in range(8):
    add('TqcPeakOmeter', 920 + i * 20, 392, 16, 150, ('Blocks', 'number', 20), objname=f'peak{i}')

for i in range(7):
    add('TqGauge', 1090, 392 + i * 22, 120, 18, ('BarColor', 'color', (0, 160, 80)),
        ('Caption', 'string', '%d%%'), objname=f'load{i}')

# A row of lamps: some blink by themselves, the others chase.
label3d('STATUS', 10, 532)
colours = ['lctGreen', 'lctyellow', 'lctCyan', 'lctBlue']
for i in range(24):
    extra = [('Blink', 'bool', True), ('BlinkInterval', 'number', 250 + 50 * (i % 4))] if i % 6 == 5 else []
    add('TqLed', 10 + i * 26, 552, 22, 22, ('LEDColor', 'enum', f'TqLed::{colours[i % 4]}'), *extra,
        objname=f'status{i}')

# Controls.
label3d('CONTROLS', 10, 584)
for i in range(8):
    add('TqKnob', 10 + i * 62, 604, 57, 57, ('Value', 'number', 10 + i * 10), objname=f'knob{i}')
for i in range(2):
    add('TqDblKnob', 520 + i * 64, 604, 57, 57, objname=f'dblknob{i}')
add('TqTripKnob', 650, 604, 57, 57, objname='tripknob')
for i in range(6):
    add('TqSlideBar', 720 + (i % 3) * 160, 600 + (i // 3) * 42, 155, 36, ('Value', 'number', 2 + i), objname=f'slide{i}')

captions = ['RUN', 'HOLD', 'AUTO', 'SINGLE', 'MENU', 'SAVE']
for i in range(6):
    add('TqColorBtn', 10 + i * 95, 692, 89, 33, ('Caption', 'string', captions[i]),
        ('Color', 'color', (200, 204, 214)), objname=f'key{i}')
for i, c in enumerate(['CH1', 'CH2', 'MATH', 'REF']):
    add('TqGradBtn', 580 + i * 95, 692, 89, 33, ('Caption', 'string', c), ('Color', 'color', (0, 40, 110)),
        ('EndColor', 'color', (0, 140, 200)), ('FontColor', 'color', (255, 255, 255)), objname=f'chan{i}')
add('TqShapeBtn', 970, 688, 40, 40, ('Shape', 'enum', 'TqShapeBtn::sbUpTriangle'), objname='up')
add('TqShapeBtn', 1020, 688, 40, 40, ('Shape', 'enum', 'TqShapeBtn::sbDnTriangle'), objname='down')
add('TqAngleLabel', 1220, 380, 60, 100, ('Caption', 'string', 'OUTPUT'), ('Angle', 'number', 90),
    ('FontColor', 'color', (220, 220, 230)), objname='side')
add('TqBigLabel', 1080, 700, 180, 30, ('Caption', 'string', 'READY'), ('FontColor', 'color', (0, 255, 120)),
    objname='state')

visual = [w for w in widgets if 'TqBackground' not in w and 'TqcTimer' not in w]
assert len(visual) == 120, len(visual)
ui = ('<?xml version="1.0" encoding="UTF-8"?>\n<ui version="4.0">\n <class>Panel</class>\n'
      ' <widget class="QWidget" name="Panel">\n'
      '  <property name="geometry"><rect><x>0</x><y>0</y><width>1280</width><height>740</height></rect></property>\n'
      '  <property name="windowTitle"><string>SA-120 front panel</string></property>\n'
      + '\n'.join(widgets) + '\n </widget>\n</ui>\n')
out = os.path.join(os.path.dirname(__file__), '..', 'demo', 'panel', 'panel.ui')
with open(out, 'w') as f:
    f.write(ui)
print(f'{out}: {len(visual)} widgets')
