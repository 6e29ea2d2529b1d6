"""Places around Lorient: where the example sites stand, and the outline of land and water.

Positions are longitude, latitude in degrees (WGS 84), good to a few hundred metres: enough for an
example, not for navigation.
"""

URBAN, SUBURBAN, RURAL, COAST = "urban", "suburban", "rural", "coast"

# name, longitude, latitude, surroundings, number of transmitters
SITES = [
    ("Lorient - Gare", -3.3660, 47.7553, URBAN, 6),
    ("Lorient - Merville", -3.3780, 47.7475, URBAN, 3),
    ("Lorient - Kéroman", -3.3740, 47.7335, URBAN, 3),
    ("Lorient - Keryado", -3.3850, 47.7600, URBAN, 3),
    ("Lorient - Lanveur", -3.3950, 47.7470, URBAN, 6),
    ("Lorient - Kervénanec", -3.3905, 47.7385, URBAN, 3),
    ("Lorient - Bois du Château", -3.3950, 47.7560, URBAN, 4),
    ("Lorient - Place Jules Ferry", -3.3655, 47.7455, URBAN, 6),
    ("Lanester - Centre", -3.3420, 47.7640, URBAN, 3),
    ("Lanester - Le Rohu", -3.3330, 47.7570, SUBURBAN, 3),
    ("Lanester - Manébos", -3.3400, 47.7790, SUBURBAN, 3),
    ("Caudan - Kerpont", -3.3230, 47.7900, SUBURBAN, 5),
    ("Caudan - Bourg", -3.3430, 47.8095, SUBURBAN, 3),
    ("Ploemeur - Bourg", -3.4290, 47.7370, SUBURBAN, 3),
    ("Ploemeur - Lomener", -3.4270, 47.7085, COAST, 3),
    ("Ploemeur - Kerroc'h", -3.4600, 47.7060, COAST, 2),
    ("Ploemeur - Fort-Bloqué", -3.4960, 47.7400, COAST, 2),
    ("Ploemeur - Kerpape", -3.4060, 47.7075, COAST, 3),
    ("Ploemeur - Soye", -3.4100, 47.7500, SUBURBAN, 3),
    ("Ploemeur - Lann-Bihoué", -3.4390, 47.7630, SUBURBAN, 3),
    ("Larmor-Plage - Bourg", -3.3840, 47.7080, COAST, 3),
    ("Larmor-Plage - Kernével", -3.3745, 47.7160, COAST, 2),
    ("Quéven - Bourg", -3.4170, 47.7895, SUBURBAN, 3),
    ("Quéven - Beg Runio", -3.4080, 47.7740, SUBURBAN, 3),
    ("Guidel - Bourg", -3.4880, 47.7905, SUBURBAN, 3),
    ("Guidel - Guidel-Plages", -3.5210, 47.7670, COAST, 2),
    ("Guidel - Saint-Fiacre", -3.5000, 47.8090, RURAL, 1),
    ("Gestel - Bourg", -3.4410, 47.8040, RURAL, 3),
    ("Pont-Scorff - Bourg", -3.4060, 47.8330, RURAL, 3),
    ("Cléguer - Bourg", -3.3830, 47.8530, RURAL, 2),
    ("Hennebont - Centre", -3.2770, 47.8050, URBAN, 3),
    ("Hennebont - Saint-Caradec", -3.2880, 47.8075, SUBURBAN, 3),
    ("Inzinzac-Lochrist - Lochrist", -3.2620, 47.8330, RURAL, 2),
    ("Kervignac - Bourg", -3.2380, 47.7630, RURAL, 3),
    ("Merlevenez - Bourg", -3.2330, 47.7370, RURAL, 2),
    ("Riantec - Bourg", -3.3080, 47.7130, COAST, 3),
    ("Port-Louis - Centre", -3.3540, 47.7090, COAST, 3),
    ("Locmiquélic - Sainte-Catherine", -3.3370, 47.7250, COAST, 3),
    ("Gâvres - Bourg", -3.3500, 47.6955, COAST, 2),
    ("Plouhinec - Bourg", -3.2520, 47.6980, RURAL, 3),
    ("Étel - Bourg", -3.2010, 47.6585, COAST, 3),
    ("Sainte-Hélène - Bourg", -3.2060, 47.7205, RURAL, 1),
    ("Brandérion - Bourg", -3.1960, 47.7945, RURAL, 2),
    ("Groix - Bourg", -3.4530, 47.6390, RURAL, 3),
    ("Groix - Pen-Men", -3.5050, 47.6475, COAST, 1),
]

# Outer rings of the land, counterclockwise. The mainland is cut off along a frame.
LAND = {
    "Mainland": [
        (-3.600, 47.900), (-3.600, 47.768), (-3.537, 47.768), (-3.527, 47.762), (-3.510, 47.752),
        (-3.502, 47.738), (-3.487, 47.722), (-3.472, 47.705), (-3.462, 47.702), (-3.446, 47.706),
        (-3.427, 47.704), (-3.406, 47.702), (-3.384, 47.703), (-3.375, 47.707), (-3.370, 47.716),
        (-3.370, 47.730), (-3.355, 47.742), (-3.345, 47.738), (-3.345, 47.727), (-3.352, 47.718),
        (-3.362, 47.710), (-3.357, 47.705), (-3.345, 47.708), (-3.335, 47.714), (-3.318, 47.710),
        (-3.305, 47.708), (-3.292, 47.704), (-3.300, 47.698), (-3.325, 47.700), (-3.345, 47.701),
        (-3.359, 47.699), (-3.357, 47.694), (-3.345, 47.691), (-3.320, 47.694), (-3.290, 47.688),
        (-3.250, 47.676), (-3.225, 47.662), (-3.211, 47.645), (-3.190, 47.640), (-3.165, 47.620),
        (-3.120, 47.600), (-3.080, 47.600), (-3.080, 47.900),
    ],
    "Groix": [
        (-3.512, 47.650), (-3.508, 47.645), (-3.490, 47.635), (-3.462, 47.625), (-3.425, 47.617),
        (-3.412, 47.622), (-3.422, 47.633), (-3.446, 47.647), (-3.475, 47.652), (-3.500, 47.652),
    ],
}

# Tidal waters that cut into the land: half width in metres, centre line.
ESTUARIES = {
    "Scorff": (140, [(-3.352, 47.741), (-3.354, 47.752), (-3.357, 47.763), (-3.368, 47.777),
                     (-3.385, 47.795), (-3.396, 47.815), (-3.402, 47.831)]),
    "Blavet": (230, [(-3.348, 47.737), (-3.328, 47.747), (-3.315, 47.762), (-3.303, 47.780),
                     (-3.284, 47.797), (-3.281, 47.805), (-3.268, 47.822), (-3.256, 47.836)]),
    "Ter": (120, [(-3.372, 47.727), (-3.385, 47.729), (-3.398, 47.733)]),
    "Laïta": (160, [(-3.537, 47.766), (-3.535, 47.782), (-3.525, 47.800), (-3.535, 47.820)]),
    "Étel": (420, [(-3.213, 47.643), (-3.208, 47.661), (-3.193, 47.680), (-3.186, 47.701),
                   (-3.178, 47.722), (-3.184, 47.744)]),
}
